#include "SheetSettings.h"

#include "Settings/KivDraftingSettings.h"
#include "Settings/KivSketcherSettings.h"

SheetSettings::SheetSettings(KivDraftingSettings& drafting, KivSketcherSettings& sketcher)
    : _drafting(drafting), _sketcher(sketcher), _style(SheetStyle::Read(drafting))
{
    const auto reread = [this](KivCallbackEvent, KivNotification*) { Reread(); };
    _callbacks = {_sketcher.AddCallback(KivSketcherSettings::GridModification(), reread),
                  _sketcher.AddCallback(KivSketcherSettings::SnapModification(), reread)};
}

SheetSettings::~SheetSettings()
{
    for (const KivCallbackId callback : _callbacks) _sketcher.RemoveCallback(callback);
}

void SheetSettings::Reread()
{
    const SheetStyle style = SheetStyle::Read(_drafting);
    if (style == _style) return;
    _style = style;
    emit Changed();
}
