#pragma once

#include "Host/Identifiers/GUIdentifier.h"

#include <QtGui/QColor>

#include <array>
#include <map>

namespace Zorvane::Workbench {

class DesignSession;

/**
 * Gives blanks, parts and tools their colours, out of the map that the whole program shares, so
 * that an object has one colour in the tree, the mesh view and its legend.
 *
 * Colours are given in the order of the designs. An object keeps its own for as long as its design
 * is open, also when the design is read again or rearranged and while another program has taken
 * the object out of it; after that the next one gets it. The ninth object shares the first one's.
 *
 * The colours are entered into the registered `ColorConfiguration` under ids from `firstColorId`.
 * Not supported: two of these for the same objects at a time.
 */
class PartColours
{
public:
    static constexpr int firstColorId = 1000;
    using Palette = std::array<QColor, 8>;

    PartColours();
    PartColours(const PartColours&) = delete;
    PartColours& operator=(const PartColours&) = delete;
    /** Gives all colours back. */
    ~PartColours();

    /** Takes account of what is open now. */
    void follow(const DesignSession& session);

    /** Invalid unless the object was open, with a colour, at the last `follow`. */
    QColor colourOf(const GUIdentifier& id) const;
    /** Those that objects can have. */
    static const Palette& palette();
    /** Of one of the colours that `colourOf` gives, for whoever looks them up by their ids. */
    static int colorId(const QColor& colour);

private:
    /** Objects with colours and the designs they belong to; null for loose parts. */
    using Owners = std::map<GUIdentifier, GUIdentifier>;

    Owners m_owners;
};

} // namespace Zorvane::Workbench
