#pragma once

// The components of a color setting, 0 to 255 unless something else is stored.
struct KivPageColor {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(const KivPageColor&) const = default;
};
