#pragma once

// The colors of the program's windows where the person asks for a scheme instead of the system's.
enum class DraftingScheme { System, Light, Dark, Contrast };

void ApplyScheme(DraftingScheme scheme);
