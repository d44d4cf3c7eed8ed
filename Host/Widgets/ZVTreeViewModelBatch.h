#pragma once

#include "Host/HostExport.h"
#include "Host/Widgets/ZVTreeViewModel.h"

#include <QtCore/QPointer>

namespace Zorvane {

/**
 * Gathers the changes of a model's rows for as long as it lives and announces the difference when
 * the outermost one closes. Inside, rows change at once while the model goes on answering views
 * from the state announced last; a view's place (expansion, selection, current row) survives
 * for every row that is still there at the end, wherever it went meanwhile.
 *
 * What is announced is the minimum: changed values first, in the old structure and as one range a
 * parent (a sorted proxy must not meet a changed value that it has not been told of), then a few
 * exact removed and inserted ranges or, where there would be many, one change of layout.
 * Slots may change rows and open batches while it is announced; what they do is announced after
 * it. A slot that throws is reported as a warning, and views start over.
 *
 * Deleting a row that views still know, other than by `ZVTreeViewItem::deleteChild`, or handing
 * it to a tree outside of the model, announces what has been gathered so far at that moment; by a
 * slot while a batch is announced it makes views start over.
 *
 * Not supported: slots of `rowsAboutToBeInserted`, `rowsAboutToBeRemoved` and
 * `layoutAboutToBeChanged` that move rows from one parent to another;
 * slots of others may.
 */
class ZORVANE_HOST_EXPORT ZVTreeViewModelBatch
{
public:
    explicit ZVTreeViewModelBatch(ZVTreeViewModel* model);
    ZVTreeViewModelBatch(const ZVTreeViewModelBatch&) = delete;
    ZVTreeViewModelBatch& operator=(const ZVTreeViewModelBatch&) = delete;
    ~ZVTreeViewModelBatch();

    /** Closes the batch before its scope ends; a second call does nothing. */
    void close();

private:
    QPointer<ZVTreeViewModel> m_model;
};

} // namespace Zorvane
