#include "Dialog/KivUserHand.h"

#include "Base/KivTextCatalogue.h"
#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgDialog.h"
#include "Dialog/KivDlgEditor.h"
#include "Dialog/KivDlgLock.h"
#include "Dialog/KivDlgSpinner.h"
#include "Dialog/KivHandReach.h"
#include "Parameter/KivMeasure.h"

#include <algorithm>
#include <cmath>

using KivHandReach::Done;
using KivHandReach::Reach;
using KivHandReach::Refused;
using KivHandReach::See;

namespace {

// Nobody can type all digits of a limit: what the field prints for it is meant as the limit. What merely
// prints alike is not: "-1 mm" is no 0 km.
bool IsMeantAs(double limit, double value, const KivDlgSpinner& spinner)
{
    double printed = limit;
    return spinner.Read(spinner.Print(limit), printed) && value == printed;
}

KivHandAnswer Enter(KivDlgSpinner& spinner, double value)
{
    if (value != spinner.GetValue()) spinner.SetValue(value, 1);
    return Done();
}

} // namespace

KivHandAnswer KivUserHand::Tick(KivDlgCheckButton& button)
{
    const KivHandAnswer reach = Reach(button);
    if (reach) button.SetState(button.GetState() == KivDlgChecked ? KivDlgUnchecked : KivDlgChecked, 1);
    return reach;
}

KivHandAnswer KivUserHand::Press(KivDlgPushButton& button)
{
    const KivHandAnswer reach = Reach(button);
    if (reach) button.SendNotification(button.GetPushBActivateNotification());
    return reach;
}

KivHandAnswer KivUserHand::Choose(KivDlgRadioButton& button)
{
    const KivHandAnswer reach = Reach(button);
    if (reach && button.GetState() != KivDlgChecked) button.SetState(KivDlgChecked, 1);
    return reach;
}

KivHandAnswer KivUserHand::Close(KivDlgDialog& window)
{
    const KivHandAnswer seen = See(window);
    if (seen) window.SendNotification(window.GetDiaCloseNotification());
    return seen;
}

KivHandAnswer KivUserHand::CloseWindow(KivDlgDialog& window)
{
    const KivHandAnswer seen = See(window);
    if (seen) window.SendNotification(window.GetWindCloseNotification());
    return seen;
}

KivHandAnswer KivUserHand::Press(KivDlgLock& lock)
{
    if (const KivHandAnswer seen = See(lock); !seen) return seen;
    if (lock.Toggle()) return Done();
    return Refused(lock.IsClosed() ? lock.GetReason()
                                   : KivTextCatalogue::FrameworkText("HandNotAdministrator"));
}

KivHandAnswer KivUserHand::Choose(KivDlgCombo& combo, int line)
{
    const KivHandAnswer reach = Reach(combo);
    if (!reach) return reach;
    if (line < 0 || line >= combo.GetLineCount())
        return Refused(KivTextCatalogue::FrameworkText("HandNoSuchLine"));
    if (line != combo.GetSelect()) combo.SetSelect(line, 1);
    return Done();
}

KivHandAnswer KivUserHand::ChooseColor(KivComboColor& combo, unsigned int red, unsigned int green,
                                       unsigned int blue)
{
    const KivHandAnswer reach = Reach(combo);
    if (!reach) return reach;
    if (red > 255 || green > 255 || blue > 255)
        return Refused(KivTextCatalogue::FrameworkText("HandNoSuchLine"));
    KivColor before;
    combo.GetSelectedColor(&before.red, &before.green, &before.blue);
    if (before == KivColor{red, green, blue}) return Done();
    combo.SetSelectedColor(red, green, blue);
    combo.SetSelect(combo.GetSelect(), 1);
    return Done();
}

KivHandAnswer KivUserHand::Type(KivDlgEditor& editor, const KivUnicodeString& text)
{
    const KivHandAnswer reach = Reach(editor);
    if (reach && text != editor.GetText()) editor.SetText(text, 1);
    return reach;
}

KivHandAnswer KivUserHand::Type(KivDlgSpinner& spinner, const KivUnicodeString& text)
{
    const KivHandAnswer reach = Reach(spinner);
    if (!reach) return reach;
    // The shown text rounds: committing it untouched must not change the value behind it.
    if (text == spinner.Print(spinner.GetValue())) return Done();
    double value = 0.0;
    if (!spinner.Read(text, value))
        return Refused(KivTextCatalogue::FrameworkText("HandMeansNothing", {text}));
    if (const auto doubt = KivMeasure::DoubtOf(text))
        return Refused(
            KivTextCatalogue::FrameworkText("HandInDoubt", {text, doubt->decimal, doubt->thousands}));
    if (spinner.HasWholeNumbers() && value != std::trunc(value))
        return Refused(KivTextCatalogue::FrameworkText("HandNotWhole", {text}));
    double minimum = 0.0, maximum = 0.0, step = 0.0;
    spinner.GetMinMaxStep(minimum, maximum, step);
    if (value < minimum && IsMeantAs(minimum, value, spinner)) value = minimum;
    if (value > maximum && IsMeantAs(maximum, value, spinner)) value = maximum;
    if (value < minimum || value > maximum)
        return Refused(KivTextCatalogue::FrameworkText("HandOutOfRange",
                                                       {spinner.Print(minimum), spinner.Print(maximum)}));
    return Enter(spinner, value);
}

KivHandAnswer KivUserHand::Turn(KivDlgSpinner& spinner, int steps)
{
    const KivHandAnswer reach = Reach(spinner);
    if (!reach) return reach;
    double minimum = 0.0, maximum = 0.0, step = 0.0;
    spinner.GetMinMaxStep(minimum, maximum, step);
    return Enter(spinner, std::clamp(spinner.GetValue() + steps * step, minimum, maximum));
}
