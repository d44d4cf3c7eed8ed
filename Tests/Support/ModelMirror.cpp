#include "Tests/Support/ModelMirror.h"

#include <algorithm>

namespace Zorvane::Testing {

ModelMirror::ModelMirror(QAbstractItemModel* model)
    : m_model(model)
{
    readAll();
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent, int first, int last) {
                auto& children = nodeOf(parent).children;
                for (int row = first; row <= last; ++row)
                    children.insert(children.begin() + row, readTree(row, parent));
            });
    connect(model, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex& parent, int first, int last) {
                auto& children = nodeOf(parent).children;
                children.erase(children.begin() + first, children.begin() + last + 1);
            });
    connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last) {
                const QModelIndex parent = first.parent();
                Node& node = nodeOf(parent);
                // Proxies for tables name rows that they don't have when a tree's values change.
                const int end = std::min(last.row() + 1, int(node.children.size()));
                for (int row = first.row(); row < end; ++row)
                    node.children[std::size_t(row)]->values = read(row, parent);
            });
    connect(model, &QAbstractItemModel::columnsInserted, this, [this] { readAll(); });
    connect(model, &QAbstractItemModel::columnsRemoved, this, [this] { readAll(); });
    connect(model, &QAbstractItemModel::layoutChanged, this, [this] { readAll(); });
    connect(model, &QAbstractItemModel::modelReset, this, [this] {
        ++m_resets;
        readAll();
    });
}

std::vector<QVariant> ModelMirror::read(int row, const QModelIndex& parent) const
{
    std::vector<QVariant> values;
    for (int column = 0; column < m_model->columnCount(parent); ++column)
        values.push_back(m_model->index(row, column, parent).data());
    return values;
}

std::unique_ptr<ModelMirror::Node> ModelMirror::readTree(int row, const QModelIndex& parent) const
{
    auto node = std::make_unique<Node>();
    node->values = read(row, parent);
    readChildren(*node, m_model->index(row, 0, parent));
    return node;
}

void ModelMirror::readChildren(Node& node, const QModelIndex& index) const
{
    node.children.clear();
    for (int row = 0; row < shownRows(index); ++row)
        node.children.push_back(readTree(row, index));
}

/** A transposed model has rows without columns below leaves. */
int ModelMirror::shownRows(const QModelIndex& index) const
{
    return m_model->columnCount(index) > 0 ? m_model->rowCount(index) : 0;
}

void ModelMirror::readAll()
{
    readChildren(m_root, QModelIndex());
}

ModelMirror::Node& ModelMirror::nodeOf(const QModelIndex& index)
{
    return index.isValid() ? *nodeOf(index.parent()).children.at(std::size_t(index.row())) : m_root;
}

QString ModelMirror::difference() const
{
    return differenceBelow(m_root, QModelIndex());
}

QString ModelMirror::differenceBelow(const Node& node, const QModelIndex& index) const
{
    const int rows = shownRows(index);
    if (rows != int(node.children.size()))
        return QStringLiteral("%1 has %2 rows, %3 were announced")
            .arg(index.data().toString())
            .arg(rows)
            .arg(node.children.size());
    for (int row = 0; row < rows; ++row) {
        const Node& child = *node.children[std::size_t(row)];
        const QModelIndex childIndex = m_model->index(row, 0, index);
        if (childIndex.parent() != index)
            return QStringLiteral("%1 names another parent").arg(childIndex.data().toString());
        if (child.values != read(row, index))
            return QStringLiteral("%1 shows values that were not announced")
                .arg(childIndex.data().toString());
        const QString below = differenceBelow(child, childIndex);
        if (!below.isEmpty())
            return below;
    }
    return {};
}

} // namespace Zorvane::Testing
