#include "KivDrwFieldServices.h"

#include "Dialog/KivDlgCombo.h"

namespace {

template <class Value, class Same> void SelectOrInsert(KivDlgCombo* combo, const Value& value, Same same)
{
    if (!combo) return;
    const int count = combo->GetLineCount();
    int before = count; // the first line that is greater
    Value line{};
    for (int i = 0; i < count; ++i) {
        if (!combo->GetLine(line, i)) continue;
        if (same(line, value)) {
            combo->SetSelect(i);
            return;
        }
        if (before == count && value < line) before = i;
    }
    combo->SetLine(value, before, KivDlgCombo::Mode::Insert);
    combo->SetSelect(before);
}

} // namespace

void SetField(KivDlgCombo* combo, double value)
{
    SelectOrInsert(combo, value, [](double a, double b) { return a == b; });
}

void SetField(KivDlgCombo* combo, const KivUnicodeString& text)
{
    SelectOrInsert(combo, text,
                   [](const KivUnicodeString& a, const KivUnicodeString& b) { return a.Compare(b) == 0; });
}
