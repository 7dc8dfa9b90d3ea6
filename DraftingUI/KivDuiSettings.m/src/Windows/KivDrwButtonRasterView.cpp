#include "Windows/KivDrwButtonRasterView.h"

#include "Dialog/KivCombos.h"

#include <iterator>

namespace {

constexpr int kCustom = 3; // the quality that is the user's own resolution
constexpr const char* kPictures[] = {"I_HiddenLineDynamic", "I_Shading", "I_ShadingWithEdges"};

// A quarter of the dots an inch at which a line of weight 2 is two dots thick.
double BaseResolution()
{
    constexpr double kMillimetersInTwoInches = 50.8;
    // The framework's table gives weight 2 a thickness of 0.7 mm; should it ever give none, the base is still
    // that of 0.7 mm.
    constexpr float kUsual = 0.7F;
    const float thickness = KivGetMMThickness(2, 1);
    return kMillimetersInTwoInches / static_cast<double>(thickness > 0.0F ? thickness : kUsual) * 0.25;
}

} // namespace

KivDrwButtonRasterView::KivDrwButtonRasterView(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, "KivDrwButtonRasterView"), _baseResolution(BaseResolution())
{
    Build();
    Open();
}

void KivDrwButtonRasterView::Build()
{
    KivFormGroup options = _form.Group(*this, "frmRasterOptions", "");
    KivFormRow mode = options.Row("lblRasterMode");
    mode.Choice("combRasterMod", _mode, _mode.Kind(), 0x40, [this] { UpdateImage(); });
    _picture = mode.Picture("lblRasterModImage");
    options.Row().At(0, 3).Label("lblLOD");
    BuildMedium(options.Row("lblLODVisu"), "combLODVisu", 0x400, "spinLODVisu", _screen);
    BuildMedium(options.Row("lblLODPrint"), "combLODPrint", 0x4, "spinLODPrint", _paper);
}

void KivDrwButtonRasterView::BuildMedium(KivFormRow row, const char* combo, unsigned long comboStyle,
                                         const char* spinner, Medium& medium)
{
    row.Choice(combo, medium.quality, medium.quality.Kind(), comboStyle,
               [this, &medium] { ShowResolution(medium); });
    medium.spinner = row.Spinner(spinner, medium.resolution, medium.resolution.Kind());
}

void KivDrwButtonRasterView::ShowValues()
{
    KivDrwButtonDialog::ShowValues();
    UpdateImage();
    ShowResolution(_screen);
    ShowResolution(_paper);
}

// A quality fixes the resolution; only the custom one is the user's to enter.
void KivDrwButtonRasterView::ShowResolution(const Medium& medium)
{
    if (!medium.spinner) return;
    const int quality = medium.quality.cached;
    const bool custom = quality == kCustom;
    medium.spinner->SetSensitivity(custom ? KivDlgEnabled : KivDlgDisabled);
    medium.spinner->SetValue(custom ? medium.resolution.cached : GetAutoDefVal(quality), 0);
}

double KivDrwButtonRasterView::GetAutoDefVal(int quality) const
{
    if (quality == 1) return _baseResolution * 4.0;
    return quality == 2 ? _baseResolution * 16.0 : _baseResolution;
}

void KivDrwButtonRasterView::UpdateImage()
{
    const int mode = _mode.cached;
    if (!_picture || mode < 0 || mode >= static_cast<int>(std::size(kPictures))) return;
    _picture->SetIconName(kPictures[mode], "", "", "");
}
