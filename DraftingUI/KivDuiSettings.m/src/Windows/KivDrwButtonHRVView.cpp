#include "Windows/KivDrwButtonHRVView.h"

#include "Base/KivTextCatalogue.h"
#include "Viewer/Kiv2DReps.h"

#include <algorithm>
#include <string>

namespace {

constexpr const char* kCatalogue = "KivDrwButtonHRVView";
constexpr int kLeast = static_cast<int>(KivDrwKinds::DetailLevel.minimum);
constexpr int kGreatest = static_cast<int>(KivDrwKinds::DetailLevel.maximum);
constexpr double kUnitsPerLevel = 5.0; // along x

constexpr int kPixels = 85; // width and height of the graph at scale 1
constexpr Kiv2DRectangle kWorld{-8.0, -8.0, 84.0, 84.0};
constexpr double kAxisEnd = 82.0;
constexpr double kArrowLength = 3.0;
constexpr double kArrowRatio = 0.35;
// The cursor's caption ends this far left of the cursor and above the curve, so that it cuts neither: right
// of the upward axis, and below the words at its end.
constexpr double kCaptionBeside = 9.0;
constexpr double kCaptionAbove = 8.0;
constexpr double kCaptionLeast = 38.0;
constexpr double kCaptionGreatest = 55.0;

constexpr unsigned int kTopAndBottom = KivDlgAttachTop | KivDlgAttachBottom;
constexpr KivSpinnerLook kLook{.width = 2, .style = 0x60000};

} // namespace

KivDrwButtonHRVView::KivDrwButtonHRVView(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, kCatalogue)
{
    Build();
    Open();
}

void KivDrwButtonHRVView::Build()
{
    KivFormGroup options = _form.Group(*this, "frmHRVOptions", "");
    KivFormRow row = options.Row();
    row.Attached(kTopAndBottom).Label("lblHRVLOD");
    _spinner = row.Attached(kTopAndBottom)
                   .Spinner(
                       "spinHRVLOD", _level, _level.Kind(), [this] { MoveCursor(); }, kLook);
    BuildViewer(&options.Frame());
}

void KivDrwButtonHRVView::BuildViewer(KivDlgFrame* frame)
{
    auto* viewer = new Kiv2DViewer(frame, "viewerHRVLOD", 0UL, kPixels, kPixels);
    _viewer = viewer;
    viewer->SetGridConstraints(0, 2, 1, 1, KivDlgAttachAllSides);
    viewer->SetWorld(kWorld);
    // Who may not type the level may not drag it either.
    if (_spinner && _spinner->GetDialog() && _spinner->GetDialog()->GetLock())
        _spinner->GetDialog()->GetLock()->AddAssociatedDialog(viewer);

    const KivTextCatalogue& texts = KivTextCatalogue::Open(kCatalogue);
    Kiv2DBag& bag = *viewer->GetRoot();
    const Kiv2DPoint zero, right{kAxisEnd, 0.0}, up{0.0, kAxisEnd};
    for (const Kiv2DPoint& end : {right, up}) {
        bag.Add(std::make_unique<Kiv2DLineRep>(zero, end));
        bag.Add(std::make_unique<Kiv2DArrowRep>(end, end, kArrowLength, kArrowRatio));
    }
    bag.Add(std::make_unique<Kiv2DTextRep>(Kiv2DPoint{kAxisEnd, 3.0}, texts.Text("XGraph"),
                                           Kiv2DAnchor::BottomRight));
    bag.Add(std::make_unique<Kiv2DTextRep>(Kiv2DPoint{4.0, kAxisEnd}, texts.Text("YGraph"),
                                           Kiv2DAnchor::TopLeft));
    std::vector<Kiv2DPoint> curve;
    for (int level = kLeast; level <= kGreatest; ++level) {
        for (const double part : {0.0, 0.5}) {
            if (level + part <= kGreatest) curve.push_back(OnCurve(level + part));
        }
    }
    bag.Add(std::make_unique<Kiv2DPolylineRep>(std::move(curve)));
    _caption =
        bag.Add(std::make_unique<Kiv2DTextRep>(zero, texts.Text("GraphCursor"), Kiv2DAnchor::BottomRight));
    _cursor = bag.Add(std::make_unique<Kiv2DPointRep>(OnCurve(kLeast)));

    _manipulator = std::make_unique<Kiv2DManipulator>(this, "manipulator", _cursor.Get());
    _manipulator->SetStep(kUnitsPerLevel, 0.0);
    _manipulator->SetRange(kUnitsPerLevel * kLeast, kUnitsPerLevel * kGreatest);
    viewer->SetActiveManipulator(_manipulator.get());
    _form.Connect(_manipulator.get(), _manipulator->GetManipulateNotification());
}

Kiv2DPoint KivDrwButtonHRVView::OnCurve(double level) const
{
    const double x = kUnitsPerLevel * level;
    return {x, _a + static_cast<double>(_c) * x * x};
}

void KivDrwButtonHRVView::ShowValues()
{
    KivDrwButtonDialog::ShowValues();
    MoveCursor();
}

void KivDrwButtonHRVView::ReadFrom(KivCommand* from)
{
    if (!_manipulator || from != _manipulator.get()) {
        KivDrwButtonDialog::ReadFrom(from);
        return;
    }
    // It may have been dragged anywhere: limited before it becomes a whole number.
    const double level = _manipulator->GetOrigin().x / kUnitsPerLevel + 0.5;
    _level.cached = static_cast<int>(std::clamp<double>(level, kLeast, kGreatest));
    ShowValues();
}

// The cursor goes to its point on the curve, also when it was dragged off it.
void KivDrwButtonHRVView::MoveCursor()
{
    if (!_viewer || !_cursor || !_caption) return;
    const Kiv2DPoint point = OnCurve(_level.cached);
    _cursor->SetOrigin(point);
    const double right = std::clamp(point.x - kCaptionBeside, kCaptionLeast, kCaptionGreatest);
    const double bottom =
        std::clamp(point.y, OnCurve(right / kUnitsPerLevel).y, OnCurve(kCaptionGreatest / kUnitsPerLevel).y);
    _caption->SetPosition({right, bottom + kCaptionAbove});
    _viewer->SetValue({kLeast, kGreatest, static_cast<double>(_level.cached),
                       KivUnicodeString(std::to_string(_level.cached))});
    _viewer->Redraw();
}
