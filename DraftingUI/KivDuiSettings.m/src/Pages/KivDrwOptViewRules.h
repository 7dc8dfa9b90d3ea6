#pragma once

// When a control of the View page is enabled.
enum class KivDrwWhen {
    Always,
    Never,
    Exact,         // in the exact mode
    Raster,        // in the raster mode
    Pictures,      // in the modes that have options of their own, raster and HRV
    UnlessCulling, // while hidden parts are not culled
    IfTicked,      // if its check button is ticked; otherwise it is left as it is
};

// What enables a control: in the exact mode, in the others, and while the generative view style governs.
struct KivDrwViewRule {
    const char* control;
    KivDrwWhen exact, other, styled;
    const char* check = ""; // whose tick counts
};

inline constexpr KivDrwViewRule kKivDrwViewRules[] = {
    {"_checkGenAxis", KivDrwWhen::Always, KivDrwWhen::Never, KivDrwWhen::Never},
    {"_checkGenCenter", KivDrwWhen::Always, KivDrwWhen::Never, KivDrwWhen::Never},
    {"_checkGenThread", KivDrwWhen::Always, KivDrwWhen::Never, KivDrwWhen::Never},
    {"_checkGenFil", KivDrwWhen::Always, KivDrwWhen::Never, KivDrwWhen::Never},
    {"_checkGenHiddenLines", KivDrwWhen::Always, KivDrwWhen::Always, KivDrwWhen::Never},
    {"checkGenApplyUncut", KivDrwWhen::Always, KivDrwWhen::Always, KivDrwWhen::Never},
    {"_checkGen3DColors", KivDrwWhen::Always, KivDrwWhen::Raster, KivDrwWhen::Never},
    {"checkGenWireFrame", KivDrwWhen::Always, KivDrwWhen::Never, KivDrwWhen::Never},
    {"pushGenFil", KivDrwWhen::IfTicked, KivDrwWhen::Never, KivDrwWhen::Never, "_checkGenFil"},
    // Enabled although the style governs its check button, deliberately.
    {"pushGenWireFrameMod", KivDrwWhen::IfTicked, KivDrwWhen::Never, KivDrwWhen::Always, "checkGenWireFrame"},
    {"linetypePushButton", KivDrwWhen::Always, KivDrwWhen::Always, KivDrwWhen::Never},
    {"checkProject3DPts", KivDrwWhen::UnlessCulling, KivDrwWhen::Never, KivDrwWhen::Never},
    {"project3DPtsPushButton", KivDrwWhen::IfTicked, KivDrwWhen::Never, KivDrwWhen::Never,
     "checkProject3DPts"},
    {"chkExactPreview", KivDrwWhen::Always, KivDrwWhen::Never, KivDrwWhen::Exact},
    {"chkOcclusionCulling", KivDrwWhen::Always, KivDrwWhen::Never, KivDrwWhen::Exact},
    {"pushRasterOptions", KivDrwWhen::Never, KivDrwWhen::Pictures, KivDrwWhen::Pictures},
};
