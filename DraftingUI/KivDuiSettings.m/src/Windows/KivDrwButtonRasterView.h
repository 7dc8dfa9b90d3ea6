#pragma once

#include "Windows/KivDrwButtonDialog.h"

// Options of views that are generated as pictures: the rendering, and for screen and paper a quality or a
// resolution of one's own.
class KivDrwButtonRasterView final : public KivClass<KivDrwButtonRasterView, KivDrwButtonDialog> {
public:
    static constexpr const char* Name = "KivDrwButtonRasterView";
    KivDrwButtonRasterView(KivDialog* parent, const KivString& name);

    void Build();
    // The resolution, in dots an inch, of a quality that is not the user's own.
    double GetAutoDefVal(int quality) const;
    // Shows a small picture of the chosen rendering; another value leaves the picture as it is.
    void UpdateImage();

private:
    void ShowValues() override;

    // What one of the two, screen or paper, consists of.
    struct Medium {
        KivDrwKeyProperty<int>& quality;
        KivDrwKeyProperty<int>& resolution;
        KivWeakPtr<KivDrwLockSpinner> spinner;
    };
    void BuildMedium(KivFormRow row, const char* combo, unsigned long comboStyle, const char* spinner,
                     Medium& medium);
    void ShowResolution(const Medium& medium);

    KIV_KEY_PROPERTY(_mode, int, KivDrwKeys::KivDrwRasterMod)
    KIV_KEY_PROPERTY(_screenResolution, int, KivDrwKeys::DrwDefVisuPicture)
    KIV_KEY_PROPERTY(_paperResolution, int, KivDrwKeys::DrwDefPrintPicture)
    KIV_KEY_PROPERTY(_screenQuality, int, KivDrwKeys::KivDrwLODVisuMod)
    KIV_KEY_PROPERTY(_paperQuality, int, KivDrwKeys::KivDrwLODPrintMod)
    Medium _screen{_screenQuality, _screenResolution, {}};
    Medium _paper{_paperQuality, _paperResolution, {}};
    KivWeakPtr<KivDrwLockLabel> _picture;
    double _baseResolution;
};
