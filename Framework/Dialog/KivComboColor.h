#pragma once

#include "Dialog/KivColor.h"
#include "Dialog/KivDlgCombo.h"

// A combo of colors: the palette's, and the one that is selected if it is none of them.
class KivComboColor : public KivClass<KivComboColor, KivDlgCombo> {
public:
    static constexpr const char* Name = "KivComboColor";

    // Starts on the color given. The flag and the last two arguments are the framework's and have to be 0.
    KivComboColor(KivDialog* parent, const KivString& name, unsigned long style, unsigned int red,
                  unsigned int green, unsigned int blue, int flag, int reserved1, int reserved2);

    KivDlgCombo* GetCombo() { return this; }

    // 1, and the components delivered; 0 when an output is missing.
    int GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue) const;
    // The same with the name that is shown.
    int GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue,
                         KivUnicodeString* name) const;
    void SetSelectedColor(unsigned int red, unsigned int green, unsigned int blue);

private:
    KivColor _color;
};
