#pragma once

#include <QtCore/QAbstractItemModel>

#include <memory>

namespace Zorvane::Testing {

/**
 * The model's rows as one list, made by a proxy model of another maker that leans on every row
 * signal. None where the platform has no such library: nothing here is the platform's business, so
 * where there is one is proof enough.
 */
std::unique_ptr<QAbstractItemModel> flatRowsOf(QAbstractItemModel* model);

} // namespace Zorvane::Testing
