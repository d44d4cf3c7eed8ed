#include "Tests/Support/ModelSignalRecorder.h"

namespace Zorvane::Testing {

namespace {

QString nameOf(const QModelIndex& parent)
{
    return parent.isValid() ? parent.sibling(parent.row(), 0).data().toString()
                            : QStringLiteral("/");
}

QString cellOf(const QModelIndex& index)
{
    return QStringLiteral("%1:%2").arg(index.row()).arg(index.column());
}

QString listOf(const QVector<int>& roles)
{
    QStringList texts;
    for (int role : roles)
        texts << QString::number(role);
    return QStringLiteral("[%1]").arg(texts.join(QLatin1Char(' ')));
}

} // namespace

ModelSignalRecorder::ModelSignalRecorder(const QAbstractItemModel* model)
{
    using Model = QAbstractItemModel;
    connect(model, &Model::rowsInserted, this, [this](const auto& parent, int first, int last) {
        noteRows("rowsInserted", parent, first, last);
    });
    connect(model, &Model::rowsRemoved, this, [this](const auto& parent, int first, int last) {
        noteRows("rowsRemoved", parent, first, last);
    });
    connect(model, &Model::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) {
                note(QStringList{QStringLiteral("dataChanged"), nameOf(first.parent()),
                                 cellOf(first), cellOf(last), listOf(roles)}
                         .join(QLatin1Char(' ')));
            });
    connect(model, &Model::layoutChanged, this,
            [this](const QList<QPersistentModelIndex>& parents) {
                QStringList words(QStringLiteral("layoutChanged"));
                for (const QPersistentModelIndex& parent : parents)
                    words << nameOf(parent);
                note(words.join(QLatin1Char(' ')));
            });
    connect(model, &Model::modelReset, this, [this] { note(QStringLiteral("modelReset")); });
    connect(model, &Model::headerDataChanged, this, [this](auto, int first, int last) {
        note(QStringLiteral("headerDataChanged %1 %2").arg(first).arg(last));
    });
}

QStringList ModelSignalRecorder::take()
{
    QStringList lines;
    lines.swap(m_lines);
    return lines;
}

void ModelSignalRecorder::noteRows(const char* signal, const QModelIndex& parent, int first,
                                   int last)
{
    note(QStringLiteral("%1 %2 %3 %4")
             .arg(QLatin1String(signal), nameOf(parent))
             .arg(first)
             .arg(last));
}

} // namespace Zorvane::Testing
