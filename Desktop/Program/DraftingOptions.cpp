#include "Program/DraftingOptions.h"

#include "Options/OptionsWindow.h"

std::unique_ptr<KivOptionsSession> DraftingOptions::NewSession()
{
    const auto manager = KivVar<KivUserSettingsManager>::Adopt(new KivUserSettingsManager);
    return std::make_unique<KivOptionsSession>(*manager.Get());
}

DraftingOptions::~DraftingOptions()
{
    Cancel();
}

OptionsWindow& DraftingOptions::Open(QWidget& sheet, const KivUnicodeString& page)
{
    if (!_window) {
        _window = new OptionsWindow(NewSession(), OptionsMemory(), sheet.window());
        _window->StandBeside(sheet);
        // Its session is over by then; the widgets follow when their last event is done.
        QObject::connect(_window, &QDialog::finished, _window, [this] {
            _window->deleteLater();
            _window = nullptr;
        });
    }
    if (!page.IsEmpty()) _window->ShowPage(page);
    _window->show();
    _window->raise();
    _window->activateWindow();
    return *_window;
}

void DraftingOptions::Cancel()
{
    if (_window) _window->reject();
}

OptionsWindow* DraftingOptions::Current() const
{
    return _window;
}
