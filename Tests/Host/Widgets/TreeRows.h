#pragma once

#include "Host/Widgets/ZVTreeViewItem.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QStringList>

#include <memory>
#include <string>

namespace Zorvane::Testing {

/** A detached row with a text. */
inline ZVTreeViewItem* newRow(const QString& text)
{
    auto row = std::make_unique<ZVTreeViewItem>();
    row->setText(text.toStdString());
    return row.release();
}

/** "a b c": appends a row for each word, in one announcement. */
inline void appendRows(ZVTreeViewItem* parent, const char* words)
{
    QVector<ZVTreeViewItem*> rows;
    for (const QString& word : QString::fromLatin1(words).split(QLatin1Char(' ')))
        rows.append(newRow(word));
    parent->appendChildren(rows);
}

/** Rows named 0, 1, 2 and so on. */
inline void appendNumbered(ZVTreeViewItem* parent, int count)
{
    QVector<ZVTreeViewItem*> rows;
    for (int i = 0; i < count; ++i)
        rows.append(newRow(QString::number(i)));
    parent->appendChildren(rows);
}

/** "a b(c d)": the texts of the rows below, as callers see them; checks their row numbers. */
inline QString textsOf(const ZVTreeViewItem* parent)
{
    QStringList texts;
    for (int i = 0; i < parent->childCount(); ++i) {
        const ZVTreeViewItem* row = parent->child(i);
        QString text = row->text();
        if (row->childCount() > 0)
            text += QLatin1Char('(') + textsOf(row) + QLatin1Char(')');
        if (row->row() != i || row->parent() != parent)
            text += QStringLiteral(" (lost: row %1)").arg(row->row());
        texts << text;
    }
    return texts.join(QLatin1Char(' '));
}

/** The same as views see it. */
inline QString textsOf(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList texts;
    for (int i = 0; i < model.rowCount(parent); ++i) {
        const QModelIndex index = model.index(i, 0, parent);
        QString text = index.data().toString();
        if (model.rowCount(index) > 0)
            text += QLatin1Char('(') + textsOf(model, index) + QLatin1Char(')');
        texts << text;
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace Zorvane::Testing
