#include "Dialog/KivDlgCombo.h"

#include "Base/KivTextCatalogue.h"
#include "Parameter/KivNumberFormat.h"

#include <utility>

void KivDlgCombo::SetLine(const KivUnicodeString& line, int position, Mode mode)
{
    Put({line, std::nullopt}, position, mode);
}

void KivDlgCombo::SetLine(double line, int position, Mode mode)
{
    Put({KivPrintNumber(line, "%g", 6), line}, position, mode);
}

void KivDlgCombo::Put(Line line, int position, Mode mode)
{
    const int count = GetLineCount();
    if (position < 0 || position > count) position = count;
    if (mode == Mode::Replace && position < count) {
        _lines[static_cast<std::size_t>(position)] = std::move(line);
    } else {
        _lines.insert(_lines.begin() + position, std::move(line));
        // The chosen line stays chosen.
        if (_selected >= position) ++_selected;
    }
    Changed();
}

bool KivDlgCombo::GetLine(KivUnicodeString& line, int position) const
{
    if (position < 0 || position >= GetLineCount()) return false;
    line = _lines[static_cast<std::size_t>(position)].text;
    return true;
}

bool KivDlgCombo::GetLine(double& line, int position) const
{
    if (position < 0 || position >= GetLineCount()) return false;
    const std::optional<double>& number = _lines[static_cast<std::size_t>(position)].number;
    if (number) line = *number;
    return number.has_value();
}

KivUnicodeString KivDlgCombo::GetShownValue() const
{
    KivUnicodeString chosen;
    GetLine(chosen, _selected);
    return chosen;
}

KivUnicodeString KivDlgCombo::GetTip() const
{
    const KivUnicodeString tip = KivDlgControl::GetTip();
    if (_lines.empty() || _selected >= 0) return tip;
    const KivUnicodeString why = KivTextCatalogue::FrameworkText("NotAmongTheChoices");
    return tip.IsEmpty() ? why : why + "\n" + tip;
}

void KivDlgCombo::ClearLine()
{
    _lines.clear();
    _selected = -1;
    Changed();
}

void KivDlgCombo::SetSelect(int position, int notify)
{
    if (position < -1 || position >= GetLineCount()) return;
    _selected = position;
    Changed();
    if (notify) SendNotification(&_selectNotification);
}

void KivDlgCombo::SetSelect(const KivUnicodeString& line, int notify)
{
    int position = -1;
    KivUnicodeString text;
    for (int i = 0; position < 0 && GetLine(text, i); ++i) {
        if (text == line) position = i;
    }
    SetSelect(position, notify);
}

void KivDlgCombo::SetVisibleTextWidth(int characters)
{
    _textWidth = characters;
    Changed();
}

void KivDlgCombo::SetVisibleTextHeight(int lines)
{
    _textHeight = lines;
    Changed();
}
