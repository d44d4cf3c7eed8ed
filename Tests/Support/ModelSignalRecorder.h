#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace Zorvane::Testing {

/**
 * Writes down what a model announces, one line a signal, in order. Parents are told by the text
 * of their first column, "/" for the root, and values by their cells and roles:
 *
 *     rowsInserted / 2 3
 *     rowsRemoved cups 0 0
 *     dataChanged / 0:0 4:1 [0 2]
 *     layoutChanged /
 *     modelReset
 *     headerDataChanged 1 1
 *
 * A layout change that names no parents is told as "layoutChanged" alone. Signals of what is
 * about to happen are left out: every announcement is one line.
 */
class ModelSignalRecorder : public QObject
{
    Q_OBJECT

public:
    explicit ModelSignalRecorder(const QAbstractItemModel* model);

    /** The lines so far; they are forgotten. */
    QStringList take();
    const QStringList& lines() const { return m_lines; }
    /** For signals of the test's own, in order with the model's. */
    void note(const QString& line) { m_lines << line; }

private:
    void noteRows(const char* signal, const QModelIndex& parent, int first, int last);

    QStringList m_lines;
};

} // namespace Zorvane::Testing
