#pragma once

#include "Viewer/Kiv2DReps.h"

#include <limits>

// Lets a user drag a point. After each move its listeners are told; they decide where the point may be: one
// that wants it on a curve sets it back there, in its callback.
//
// The dialog that uses it owns it; point and viewer are neither its owners nor owned. Each of the three, and
// the listener, may die in any order, also while a notification is under way.
class Kiv2DManipulator : public KivClass<Kiv2DManipulator, KivCommand> {
public:
    static constexpr const char* Name = "Kiv2DManipulator";
    // With the dialog as parent it falls silent as soon as the dialog is to be destroyed.
    Kiv2DManipulator(KivCommand* parent, const KivString& name, Kiv2DPointRep* point)
        : KivClass(parent, name), _point(point)
    {}

    // Null when it has been destroyed.
    Kiv2DPointRep* GetPoint() const { return _point.Get(); }
    // Where the point is, in the world; the origin of the world when there is no point.
    Kiv2DPoint GetOrigin() const { return _point ? _point->GetOrigin() : Kiv2DPoint(); }

    // What one step of the keyboard adds, in units of the world; at first nothing. Not finite: ignored.
    void SetStep(double x, double y);
    const Kiv2DPoint& GetStep() const { return _step; }
    // The range that steps keep to, in x; at first without ends. Dragging is not held to it: that is for the
    // listener to decide. An empty one is ignored.
    void SetRange(double least, double greatest);
    double GetLeast() const { return _least; }
    double GetGreatest() const { return _greatest; }
    // Where so many steps lead from here, ending at the limits of the range.
    Kiv2DPoint AfterSteps(int steps) const;

    // Moves the point, as a user's hand does, and tells. This object may be gone afterwards.
    void MoveTo(const Kiv2DPoint& point);

    // The point was moved by a user.
    KivNotification* GetManipulateNotification() const { return &_manipulated; }

private:
    KivWeakPtr<Kiv2DPointRep> _point;
    Kiv2DPoint _step;
    double _least = -std::numeric_limits<double>::infinity();
    double _greatest = std::numeric_limits<double>::infinity();
    mutable KivNotification _manipulated{"Kiv2DManipulateNotification"};
};
