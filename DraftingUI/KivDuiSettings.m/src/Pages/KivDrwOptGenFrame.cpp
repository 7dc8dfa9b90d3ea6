#include "Pages/KivDrwOptGenFrame.h"

namespace {

constexpr KivSpinnerLook kTimeOutLook{.width = 3, .style = 0x60000};

// The groups stand apart: rows 0 and 2 of the page stay empty, deliberately.
constexpr short kDimensionRow = 1;
constexpr short kBalloonRow = 3;

} // namespace

KivDrwOptGenFrame::KivDrwOptGenFrame(KivDialog* parent, const KivString& name) : KivClass(parent, name, Name)
{
    _form.SetCallback(&KivDrwOptGenFrame::WriteSettings_CallbackMethod);
}

void KivDrwOptGenFrame::Build()
{
    BuildDimensions();
    Group("frameGenBal", "I_DrwGenballoon", kBalloonRow)
        .Row()
        .Check("checkGenBalloonByInstance", _genBalloonByInstance);
}

void KivDrwOptGenFrame::BuildDimensions()
{
    KivFormGroup dimensions = Group("frameGenDim", "I_GenDim", kDimensionRow);
    const auto timeOut = [&] {
        KivFormRow row = dimensions.Row();
        // The label never grays, deliberately.
        row.Label("labelGenDimSemiAuto")->GetDialog()->SetGraysWithControl(false);
        return row.Spinner("spinnerGenDimSemiAuto", _genDimSemiAutoTimeOut, _genDimSemiAutoTimeOut.Kind(), {},
                           kTimeOutLook);
    };
    const std::vector<KivDrwLockDialog*> controls = {
        dimensions.Row().At(0, 2).Check("checkGenDim", _genDim),
        dimensions.Row().Check("checkGenDimFilter", _genDimFilter),
        dimensions.Row().At(0, 2).Check("checkGenDimAutoPos", _genDimAutoPos),
        dimensions.Row().At(0, 2).Check("checkGenDimAutoTrans", _genDimAutoTrans),
        dimensions.Row().Check("checkGenDimAnal", _genDimAnal),
        dimensions.Row().At(0, 2).Check("checkGenDimFromPart", _genDimFromPart),
        timeOut(),
    };
    // Only exact views have dimensions of their own. Balloons and the label never gray, deliberately.
    _rules.AvailableWhile(
        [this] {
            return !_repository ||
                   KivDrwRead(_repository, KivDrwKeys::DrwGenerationModeVal) == KivDrwExactMode;
        },
        controls);
}

void KivDrwOptGenFrame::Write()
{
    if (!_repository) return;
    _form.ReadAll();
    // The order is a contract, and not that of reading.
    _form.Store({&_genBalloonByInstance, &_genDim, &_genDimFilter, &_genDimAutoPos, &_genDimAutoTrans,
                 &_genDimAnal, &_genDimFromPart, &_genDimSemiAutoTimeOut});
}

void KivDrwOptGenFrame::WriteSettings_CallbackMethod(KivCommand*, KivNotification*, void*)
{
    Write();
}
