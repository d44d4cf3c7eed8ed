#include "Tests/Host/Widgets/FlatRows.h"

#include <KDescendantsProxyModel>

namespace Zorvane::Testing {

std::unique_ptr<QAbstractItemModel> flatRowsOf(QAbstractItemModel* model)
{
    auto flat = std::make_unique<KDescendantsProxyModel>();
    flat->setSourceModel(model);
    return flat;
}

} // namespace Zorvane::Testing
