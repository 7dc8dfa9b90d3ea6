#pragma once

#include "Common/OptionsMemory.h"
#include "Sheet/SheetStyle.h"

// What the drafting window remembers for windows to come: the style of lines that they start with. A file
// that cannot be read or written is as good as none.
class DraftingMemory {
public:
    explicit DraftingMemory(const QString& file = OptionsMemory::UserFile()) : _file(file) {}

    // The standard style when none was set or it is unknown.
    SheetLine DefaultLine() const;
    void SetDefaultLine(SheetLine line) const;
    void DropDefaultLine() const;

private:
    QString _file;
};
