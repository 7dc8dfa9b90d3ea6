#pragma once

// How new views are generated, as the setting "DrwGenerationModeVal" stores it.
enum KivDrwGenerationMode { KivDrwExactMode = 0, KivDrwVbxMode = 1, KivDrwRasterMode = 2, KivDrwHrvMode = 3 };
