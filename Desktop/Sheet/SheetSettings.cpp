#include "Sheet/SheetSettings.h"

#include "Settings/KivSettingRepository.h"
#include "Workbench/KivDraftingSettings.h"
#include "Workbench/KivSketcherSettings.h"

SheetSettings::SheetSettings(KivDraftingSettings& drafting, KivSketcherSettings& sketcher,
                             KivSettingRepository* repository)
    : _drafting(drafting), _sketcher(sketcher), _repository(repository), _style(SheetStyle::Read(drafting)),
      _sketch(SheetSketchStyle::Read(sketcher, repository))
{
    const auto follow = [this](KivCallbackEvent event, void (SheetSettings::*reread)()) {
        _callbacks.push_back(_sketcher.AddCallback(
            event, [this, reread](KivCallbackEvent, KivNotification*) { (this->*reread)(); }));
    };
    follow(KivSketcherSettings::GridModification(), &SheetSettings::Reread);
    follow(KivSketcherSettings::SnapModification(), &SheetSettings::Reread);
    for (const KivCallbackEvent event :
         {KivSketcherSettings::Visu3DUIModification(), KivSketcherSettings::GeomUIModification(),
          KivSketcherSettings::CpltModification()})
        follow(event, &SheetSettings::RereadSketch);
    if (_repository)
        _listener = _repository->AddListener([this](const KivSettingRepository::Keys&) { RereadSketch(); });
}

SheetSettings::~SheetSettings()
{
    for (const KivCallbackId callback : _callbacks) _sketcher.RemoveCallback(callback);
    if (_repository) _repository->RemoveListener(_listener);
}

void SheetSettings::Reread()
{
    const SheetStyle style = SheetStyle::Read(_drafting);
    if (style == _style) return;
    _style = style;
    emit Changed();
}

void SheetSettings::RereadSketch()
{
    const SheetSketchStyle sketch = SheetSketchStyle::Read(_sketcher, _repository);
    if (sketch == _sketch) return;
    _sketch = sketch;
    emit Changed();
}
