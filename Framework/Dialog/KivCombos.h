#pragma once

#include "Dialog/KivColor.h"
#include "Dialog/KivDlgCombo.h"

#include <array>

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

// A combo whose lines are numbered from 1, as drawings number them.
class KivNumberedCombo : public KivDlgCombo {
public:
    using KivDlgCombo::KivDlgCombo;

    KivDlgCombo* GetCombo() { return this; }

    // 0 when nothing is selected. A number that no line has selects none.
    unsigned int GetSelect() const { return static_cast<unsigned int>(KivDlgCombo::GetSelect() + 1); }
    void SetSelect(unsigned int number);
};

// A combo of line types: 1 to 7 are the framework's, the further ones are those that were added.
class KivComboDashed : public KivClass<KivComboDashed, KivNumberedCombo> {
public:
    static constexpr const char* Name = "KivComboDashed";
    static constexpr unsigned int kStandardTypes = 7;

    // The last two arguments are the framework's.
    KivComboDashed(KivDialog* parent, const KivString& name, unsigned long style, unsigned int variant,
                   int reserved);

    // Adds that many types of that name, numbered on from the last one.
    void AddOtherType(const KivString& type, int count);
};

// A combo of point symbols.
class KivComboSymbol : public KivClass<KivComboSymbol, KivNumberedCombo> {
public:
    static constexpr const char* Name = "KivComboSymbol";
    static constexpr unsigned int kSymbols = 9;

    KivComboSymbol(KivDialog* parent, const KivString& name, unsigned long style);
};

// A combo of line weights, numbered from 0.
class KivComboWeight : public KivClass<KivComboWeight, KivDlgCombo> {
public:
    static constexpr const char* Name = "KivComboWeight";
    // Thickness of each weight in millimeters.
    static constexpr std::array<double, 7> kMillimeters = {0.1, 0.35, 0.7, 1.05, 1.4, 1.75, 2.1};

    // The last two arguments are the framework's.
    KivComboWeight(KivDialog* parent, const KivString& name, unsigned long style, unsigned int variant,
                   int reserved);

    unsigned int GetSelect() const { return static_cast<unsigned int>(KivDlgCombo::GetSelect()); }
    // A number that no line has selects none.
    void SetSelect(unsigned int weight);
    KivDlgCombo* GetCombo() { return this; }
};

// The thickness of a line weight in millimeters; 0 for a number that no weight has. The second argument is
// the framework's (1: as drawn on paper).
float KivGetMMThickness(int weight, int medium);
