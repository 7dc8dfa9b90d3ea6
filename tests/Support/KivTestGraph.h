#pragma once

#include "Viewer/Kiv2DArrowRep.h"
#include "Viewer/Kiv2DLineRep.h"
#include "Viewer/Kiv2DPolylineRep.h"
#include "Viewer/Kiv2DTextRep.h"
#include "Viewer/Kiv2DViewer.h"

#include <algorithm>
#include <functional>
#include <string>

// A graph as dialogs build theirs: axes, captions, a curve, and a cursor that snaps to levels along it.
class KivTestGraph : public KivCommand {
public:
    static constexpr double kStep = 5.0;
    static constexpr int kLevels = 15;

    explicit KivTestGraph(KivDialog* parent) : KivCommand(parent, "graph")
    {
        Kiv2DViewer* const shown = new Kiv2DViewer(parent, "viewer", 0, 85, 85);
        viewer = shown;
        shown->SetWorld({-8.0, -8.0, 84.0, 84.0});
        Kiv2DBag& bag = *shown->GetRoot();
        const Kiv2DPoint zero, right{82.0, 0.0}, up{0.0, 82.0};
        for (const Kiv2DPoint& end : {right, up}) {
            bag.Add(std::make_unique<Kiv2DLineRep>(zero, end));
            bag.Add(std::make_unique<Kiv2DArrowRep>(end, end, 3.0, 0.35));
        }
        bag.Add(std::make_unique<Kiv2DTextRep>(Kiv2DPoint{82.0, 3.0}, "Level", Kiv2DAnchor::BottomRight));
        bag.Add(std::make_unique<Kiv2DTextRep>(Kiv2DPoint{4.0, 82.0}, "Quality", Kiv2DAnchor::TopLeft));
        std::vector<Kiv2DPoint> curve;
        for (int x = 5; x <= 75; ++x) curve.push_back(OnCurve(x));
        bag.Add(std::make_unique<Kiv2DPolylineRep>(std::move(curve)));
        caption = bag.Add(std::make_unique<Kiv2DTextRep>(zero, "4", Kiv2DAnchor::BottomRight));
        point = bag.Add(std::make_unique<Kiv2DPointRep>());
        manipulator = std::make_unique<Kiv2DManipulator>(this, "manipulator", point.Get());
        manipulator->SetStep(kStep, 0.0);
        manipulator->SetRange(kStep, kStep * kLevels);
        shown->SetActiveManipulator(manipulator.get());
        AddAnalyseNotificationCB(manipulator.get(), manipulator->GetManipulateNotification(),
                                 &KivTestGraph::Moved, nullptr);
        Show(4);
    }

    static Kiv2DPoint OnCurve(double x) { return {x, 10.0 + 13.0 / 1125.0 * x * x}; }

    void Show(int shown)
    {
        level = shown;
        const Kiv2DPoint place = OnCurve(kStep * level);
        point->SetOrigin(place);
        caption->SetPosition({place.x - 6.0, place.y + 4.0});
        const KivUnicodeString text(std::to_string(level));
        caption->SetText(text);
        viewer->SetValue({1.0, kLevels, static_cast<double>(level), text});
    }
    void Moved(KivCommand*, KivNotification*, void*)
    {
        ++moves;
        if (instead) return instead();
        const double exact = manipulator->GetOrigin().x / kStep + 0.5;
        Show(static_cast<int>(std::clamp(exact, 1.0, static_cast<double>(kLevels))));
    }

    KivWeakPtr<Kiv2DViewer> viewer; // its parent's
    KivWeakPtr<Kiv2DPointRep> point;
    KivWeakPtr<Kiv2DTextRep> caption;
    std::unique_ptr<Kiv2DManipulator> manipulator;
    int level = 0;
    int moves = 0;
    std::function<void()> instead; // what it does when the point has been moved
};
