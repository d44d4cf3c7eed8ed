#include "Files/CopyQuestions.h"

namespace Zorvane {

CopyQuestions::CopyQuestions() = default;
CopyQuestions::~CopyQuestions() = default;

} // namespace Zorvane
