#pragma once

#include "Host/FileHandling/ZvFileType.h"
#include "UiToolsExport.h"

#include <list>
#include <string>

namespace Zorvane {

/*
 * What users see of file types. Texts are UTF-8 in the user's language. A filter is one or more
 * entries "description (*.ending ...)", separated by ";;", as file dialogs take it. None of these
 * functions fails: what is no file type shows as "Unknown File".
 */

/** The type's name. */
ZORVANE_UITOOLS_EXPORT std::string clearTextForFileType(ZvFileType type);

/** The entry of one type. */
ZORVANE_UITOOLS_EXPORT std::string getFileFilterForType(ZvFileType type);

/**
 * The entry of the type that the ending (with its leading dot) belongs to; for any other ending an
 * entry that is named after it.
 */
ZORVANE_UITOOLS_EXPORT std::string getFileFilterForEnding(const std::string& ending);

/**
 * The entries of the types in their order, a type given twice standing there twice. With the all
 * entry, one that matches all of them comes first, under the label given or "All Files".
 */
ZORVANE_UITOOLS_EXPORT std::string getFileFilterForTypes(const std::list<ZvFileType>& types,
                                                         bool withAllEntry,
                                                         const std::string& allLabel);

/** The same for endings, each with its leading dot. */
ZORVANE_UITOOLS_EXPORT std::string getFileFilterForEndings(const std::list<std::string>& endings,
                                                           bool withAllEntry,
                                                           const std::string& allLabel);

} // namespace Zorvane
