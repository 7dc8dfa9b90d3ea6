#include "Component/KivLibrary.h"
#include "HandWrittenDialog.h"
#include "Options/KivOptionsSession.h"
#include "Options/OptionsWindow.h"
#include "Ratio.h"
#include "Support/KivSettingsSandbox.h"

#include <QApplication>

namespace {

// From nothing to the first complete picture on the (offscreen) screen.
void Paint(QWidget& window)
{
    window.show();
    QCoreApplication::processEvents();
    benchmark::DoNotOptimize(window.grab().width());
}

void Ours(benchmark::State& state)
{
    KivSettingsSandbox box;
    for (const char* library : {KIV_COMPONENT_LIBRARIES}) KivLoadLibrary(library);
    KivUserSettingsManager manager;
    for (auto _ : state) {
        OptionsWindow window(std::make_unique<KivOptionsSession>(manager), OptionsMemory(QString()));
        window.resize(960, 720);
        Paint(window);
    }
}

void Bare(benchmark::State& state)
{
    for (auto _ : state) {
        HandWrittenDialog window;
        window.resize(960, 720);
        Paint(window);
    }
}

} // namespace

int main(int argc, char** argv)
{
    // On the display where there is one: offscreen nothing is asked of a desktop.
    if (qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
    int none = 1;
    QApplication application(none, argv);
    KivRatio::Add("first paint of the options / the same by hand in Qt", 1.25, &Ours, &Bare);
    return KivRatio::Run(argc, argv);
}
