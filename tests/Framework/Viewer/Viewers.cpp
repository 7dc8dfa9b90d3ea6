#include "Dialog/KivDlgFrame.h"
#include "Dialog/KivDlgLock.h"
#include "Support/KivTestGraph.h"
#include "Viewer/KivUserHandViewer.h"

#include <gtest/gtest.h>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

class Viewers : public testing::Test {
protected:
    ~Viewers() override
    {
        KivCommand::DrainDelayedDestruction();
        graph.reset();
        page.reset();
        EXPECT_EQ(KivBaseUnknown::LiveObjects(), before);
    }
    KivHandAnswer Drag(double x, double y = 3.0) { return KivUserHand::Drag(*graph->viewer, x, y); }
    KivHandAnswer Step(int steps) { return KivUserHand::Step(*graph->viewer, steps); }

    long before = KivBaseUnknown::LiveObjects();
    std::unique_ptr<KivDlgFrame> page = std::make_unique<KivDlgFrame>(nullptr, "page");
    std::unique_ptr<KivTestGraph> graph = std::make_unique<KivTestGraph>(page.get());
};

TEST_F(Viewers, KeysStepToTheEndsAndAValueIsEnteredByItsPlace)
{
    constexpr int kMany = std::numeric_limits<int>::max();
    std::vector<int> levels;
    for (const int steps : {1, -2, -kMany, -1, kMany, 1}) {
        EXPECT_TRUE(Step(steps));
        levels.push_back(graph->level);
    }
    EXPECT_EQ(levels, (std::vector{5, 3, 1, 1, 15, 15}));
    EXPECT_EQ(graph->moves, 4);
    for (const auto& [value, level] : {std::pair{7.0, 7}, {99.0, 15}, {-kInfinity, 1}}) {
        EXPECT_TRUE(KivUserHand::Enter(*graph->viewer, value));
        EXPECT_EQ(graph->level, level) << value;
    }
    EXPECT_FALSE(KivUserHand::Enter(*graph->viewer, kNan));
    const Kiv2DPoint there = graph->point->GetOrigin();
    graph->moves = 0;
    EXPECT_TRUE(Drag(there.x, there.y));
    EXPECT_EQ(graph->moves, 0) << "nothing moved, nothing to tell";
    // A step that is cut short in x is cut in y as well; without a step in x only y moves.
    graph->instead = [] {};
    graph->point->SetOrigin({70.0, 10.0});
    graph->manipulator->SetStep(10.0, 4.0);
    EXPECT_TRUE(Step(1));
    EXPECT_EQ(graph->point->GetOrigin(), (Kiv2DPoint{75.0, 12.0}));
    graph->manipulator->SetStep(0.0, 4.0);
    EXPECT_TRUE(Step(-2));
    EXPECT_EQ(graph->point->GetOrigin(), (Kiv2DPoint{75.0, 4.0}));
}

TEST_F(Viewers, RefuseWhatAUserCouldNotDo)
{
    KivSettingInfo locked;
    locked.locked = true;
    auto* lock = new KivDlgLock(page.get(), "lock", KivSettingInfo(), 0);
    Kiv2DViewer& viewer = *graph->viewer;
    lock->AddAssociatedDialog(&viewer);
    const std::pair<std::function<void()>, std::function<void()>> hindrances[] = {
        {[&] { viewer.SetSensitivity(KivDlgDisabled); }, [&] { viewer.SetSensitivity(KivDlgEnabled); }},
        {[&] { lock->SetInfo(locked); }, [&] { lock->SetInfo(KivSettingInfo()); }},
        {[&] { page->SetSensitivity(KivDlgDisabled); }, [&] { page->SetSensitivity(KivDlgEnabled); }},
        {[&] { page->SetVisibility(KivDlgHidden); }, [&] { page->SetVisibility(KivDlgShown); }},
        {[&] { viewer.SetActiveManipulator(nullptr); },
         [&] { viewer.SetActiveManipulator(graph->manipulator.get()); }},
    };
    for (const auto& [hinder, free] : hindrances) {
        hinder();
        EXPECT_FALSE(Drag(30.0) || Step(1) || KivUserHand::Enter(viewer, 9.0));
        free();
    }
    for (const double nowhere : {kNan, kInfinity, -kInfinity}) {
        EXPECT_FALSE(Drag(nowhere).why.IsEmpty());
        EXPECT_FALSE(Drag(30.0, nowhere));
    }
    EXPECT_EQ(graph->moves, 0);
    EXPECT_EQ(graph->point->GetOrigin(), KivTestGraph::OnCurve(20.0));
    EXPECT_TRUE(Drag(30.0));
    viewer.RequestDelayedDestruction();
    EXPECT_FALSE(Drag(40.0)) << "condemned";
    EXPECT_EQ(graph->moves, 1);
}

TEST_F(Viewers, AnyPartMayGoAtAnyTime)
{
    const std::function<void()> deaths[] = {
        [this] { delete graph->viewer.Get(); },
        [this] { graph->manipulator.reset(); },
        [this] { graph->viewer->GetRoot()->Remove(graph->point.Get()); },
        [this] { graph.reset(); },
        [this] { page.reset(); },
        [this] { graph.release()->RequestDelayedDestruction(); },
        [this] { page.release()->RequestDelayedDestruction(); },
    };
    for (const auto& die : deaths) {
        for (const bool underWay : {true, false}) {
            SCOPED_TRACE(std::to_string(&die - deaths) + (underWay ? " under way" : " before"));
            if (!page) page = std::make_unique<KivDlgFrame>(nullptr, "page");
            graph = std::make_unique<KivTestGraph>(page.get());
            const KivWeakPtr<Kiv2DViewer> viewer(graph->viewer.Get());
            if (underWay) {
                graph->instead = die;
                EXPECT_TRUE(Drag(30.0));
            } else {
                die();
            }
            if (viewer) {
                EXPECT_FALSE(KivUserHand::Step(*viewer, 1));
            }
            KivCommand::DrainDelayedDestruction();
            graph.reset();
        }
    }
}

// Writes down what is drawn.
class Recorder : public Kiv2DCanvas {
public:
    void Draw(const Kiv2DLineRep&) override { drawn += 'l'; }
    void Draw(const Kiv2DArrowRep&) override { drawn += 'a'; }
    void Draw(const Kiv2DTextRep&) override { drawn += 't'; }
    void Draw(const Kiv2DPolylineRep& curve) override { drawn += std::to_string(curve.GetPoints().size()); }
    void Draw(const Kiv2DPointRep&) override { drawn += 'p'; }
    std::string drawn;
};

TEST_F(Viewers, BagsDrawInOrderWhatHasAPlace)
{
    Recorder recorder;
    Kiv2DBag& bag = *graph->viewer->GetRoot();
    const Kiv2DPoint nowhere{kNan, 0.0}, zero;
    bag.Add(std::make_unique<Kiv2DLineRep>(zero, nowhere));
    bag.Add(std::make_unique<Kiv2DArrowRep>(zero, zero, 3.0, 0.35));
    bag.Add(std::make_unique<Kiv2DTextRep>(nowhere, "t", Kiv2DAnchor::Center));
    const Kiv2DBag* inner = bag.Add(std::make_unique<Kiv2DBag>());
    bag.Add(std::make_unique<Kiv2DPolylineRep>(std::vector{zero, nowhere, zero}));
    EXPECT_FALSE(bag.Add(std::unique_ptr<Kiv2DPointRep>()));
    bag.Remove(inner);
    bag.DrawOn(recorder);
    EXPECT_EQ(recorder.drawn, "lalatt71tp2");

    const Kiv2DRectangle world = graph->viewer->GetWorld();
    for (const Kiv2DRectangle& none : {Kiv2DRectangle{1.0, 0.0, 1.0, 2.0}, {0.0, 0.0, kInfinity, 1.0}})
        graph->viewer->SetWorld(none);
    EXPECT_EQ(graph->viewer->GetWorld(), world);
}

} // namespace
