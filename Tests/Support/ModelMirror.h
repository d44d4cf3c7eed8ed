#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>

#include <memory>
#include <vector>

namespace Zorvane::Testing {

/**
 * A copy of a model's tree that follows the model's signals and nothing else, as a strict view
 * would. When it differs from the model, an announcement was wrong or missing.
 */
class ModelMirror : public QObject
{
    Q_OBJECT

public:
    explicit ModelMirror(QAbstractItemModel* model);

    /** Empty when the copy equals the model, else where they differ. */
    QString difference() const;
    int resets() const { return m_resets; }

private:
    struct Node
    {
        std::vector<QVariant> values;
        std::vector<std::unique_ptr<Node>> children;
    };

    std::vector<QVariant> read(int row, const QModelIndex& parent) const;
    std::unique_ptr<Node> readTree(int row, const QModelIndex& parent) const;
    void readChildren(Node& node, const QModelIndex& index) const;
    int shownRows(const QModelIndex& index) const;
    void readAll();
    Node& nodeOf(const QModelIndex& index);
    QString differenceBelow(const Node& node, const QModelIndex& index) const;

    QAbstractItemModel* const m_model;
    Node m_root;
    int m_resets = 0;
};

} // namespace Zorvane::Testing
