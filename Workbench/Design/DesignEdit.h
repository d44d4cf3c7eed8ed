#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Design/Quantity.h"

#include <QtCore/QMetaType>

#include <cstddef>
#include <utility>
#include <variant>
#include <vector>

namespace Zorvane::Workbench {

/** Objects that were taken out of a design or added to it, each with its place in its list. */
struct TakenObjects
{
    template <typename Piece>
    using Places = std::vector<std::pair<std::size_t, Piece>>;

    GUIdentifier design;
    Places<FileReference> files;
    Places<Part> parts;

    bool isEmpty() const { return files.empty() && parts.empty(); }
    std::vector<GUIdentifier> ids() const;
    /** Of the first one, files before parts; empty without any. */
    QString firstName() const;
};

struct NameEdit
{
    GUIdentifier object;
    QString before;
    QString after;
};

struct QuantityEdit
{
    GUIdentifier object;
    Quantity quantity = Quantity::Thickness;
    double before = noValue;
    double after = noValue;
};

struct AdditionEdit
{
    TakenObjects objects;
};

struct RemovalEdit
{
    TakenObjects objects;
};

/** One change of a design, with all that it takes to undo it. */
using DesignEdit = std::variant<NameEdit, QuantityEdit, AdditionEdit, RemovalEdit>;

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::DesignEdit)
