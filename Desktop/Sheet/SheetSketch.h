#pragma once

#include <QPainterPath>
#include <QRectF>

#include <array>
#include <optional>
#include <span>

// A kind of geometric constraint.
enum class SheetConstraint {
    Horizontal,
    Vertical,
    Parallel,
    Perpendicular,
    Concentric,
    Coincident,
    Tangent,
    Symmetric,
};
inline constexpr std::size_t kSheetConstraints = 8;

// The symbol of a kind, from -1 to 1 in both directions, y up.
QPainterPath SheetSymbol(SheetConstraint kind);

// The sample sketch: a tongue with a bore and two holes, in mm around its middle, y up.
class SheetSketch {
public:
    // How far the solver has determined an element. The diagnosed ones come first, in the order of the
    // diagnostics' colors.
    enum class State { OverConstrained, Inconsistent, NotChanged, IsoConstrained, Free, Construction };
    static constexpr int kDiagnosed = 4;

    // A line, or (with a radius) a circle around its first point, or the right half of one.
    struct Element {
        State state;
        QPointF from, to;
        double radius = 0.0;
        bool isHalf = false;

        QPainterPath Path() const;
        // Its position that is nearest to another one; none where it has none.
        std::optional<QPointF> Nearest(QPointF position) const;
    };
    static std::span<const Element> Elements();

    // A constraint's symbol stands beside a position, in a direction of length 1.
    struct Symbol {
        SheetConstraint kind;
        QPointF at, away;
    };
    static std::span<const Symbol> Symbols();

    // The corners of the outline, beginning with the lower left one.
    static std::span<const QPointF> Ends();
    // Crosses in the circles; they are created with these.
    static QPainterPath CenterMarks();
    // The sign of what a hand may move: four arrows, at the free element.
    static QPainterPath DragMark();

    // All that the sketch needs on paper at full scale, with room for its legend and name.
    static QRectF Extent() { return {-56.0, -46.0, 112.0, 92.0}; }
};
