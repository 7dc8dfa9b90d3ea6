#include "Program/DraftingMemory.h"

#include <QSettings>

namespace {

constexpr const char* kLine = "Drafting/Line";

constexpr struct {
    SheetLine line;
    const char* name;
} kNames[] = {{SheetLine::Standard, "standard"}, {SheetLine::Thin, "thin"}, {SheetLine::Thick, "thick"}};

} // namespace

SheetLine DraftingMemory::DefaultLine() const
{
    const QString stored = QSettings(_file, QSettings::IniFormat).value(kLine).toString();
    for (const auto& [line, name] : kNames) {
        if (stored == QLatin1String(name)) return line;
    }
    return SheetLine::Standard;
}

void DraftingMemory::SetDefaultLine(SheetLine line) const
{
    for (const auto& known : kNames) {
        if (known.line == line) QSettings(_file, QSettings::IniFormat).setValue(kLine, known.name);
    }
}

void DraftingMemory::DropDefaultLine() const
{
    QSettings(_file, QSettings::IniFormat).remove(kLine);
}
