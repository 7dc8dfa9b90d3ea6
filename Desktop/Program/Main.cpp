#include "Base/KivTextCatalogue.h"
#include "Common/NativeText.h"
#include "Common/SettingsWatch.h"
#include "Common/WindowPlace.h"
#include "KivDrwSettingAccess.h"
#include "KivDrwWorkbench.h"
#include "Parameter/KivNumberFormat.h"
#include "Program/DraftingMessages.h"
#include "Program/DraftingPictures.h"
#include "Program/DraftingSignals.h"
#include "Program/DraftingStart.h"
#include "Program/DraftingWindow.h"
#include "Settings/KivSettingRepository.h"
#include "Sheet/SheetSettings.h"

#include <QApplication>
#include <QLocale>

#include <cstdio>
#include <iostream>
#include <optional>
#include <vector>

namespace {

bool HasScreen()
{
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name)) return true;
    return false;
}

void Say(QtMsgType, const QMessageLogContext&, const QString& said)
{
    if (said.contains("propagateSizeHints") || said.contains("XDG_RUNTIME_DIR")) return;
    std::fprintf(stderr, "%s\n", qPrintable(said));
}

// Makes Qt draw without a screen, and keeps back what its platform has to say of every window that is shown
// so. To be called before the application is constructed.
void DrawOffscreen()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(&Say);
}

int ShowWindow(DraftingWindow& window, const KivUnicodeString& page)
{
    const DraftingSignals ends;
    QObject::connect(&ends, &DraftingSignals::EndWanted, &window, [&window] {
        window.close();
        QApplication::quit();
    });
    window.show();
    // Who asks for a page is not asked for a new drawing first.
    if (page.IsEmpty()) {
        window.Welcome();
    } else {
        WindowPlace::WhenPlaced(window, [&window, page] { window.OpenOptions(page); });
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    CommandLine line = CommandLine::Parse(arguments);
    DraftingDiagnostics diagnostics(true);
    KivSetDecimalMark(QLocale::system().decimalPoint() == "," ? ',' : '.');
    if (const auto code = DraftingStart::Prepare(line, std::cout, std::cerr)) return *code;

    if (!line.screenshots && !HasScreen()) {
        line.screenshots = "screenshots";
        std::cout << DraftingText("NoScreen").toStdString() << '\n';
    }
    if (line.screenshots) DrawOffscreen();
    if (line.scale != 1.0) qputenv("QT_SCALE_FACTOR", QByteArray::number(line.scale));

    // The arguments are ours and have been read; the toolkit gets the name alone.
    int names = 1;
    const QApplication application(names, argv);
    QApplication::setApplicationName("kivdrafting");
    QApplication::setDesktopFileName("kivdrafting");
    QApplication::setLayoutDirection(KivTextCatalogue::IsRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    ApplyScheme(line.scheme == DraftingScheme::System && line.screenshots ? DraftingScheme::Light
                                                                          : line.scheme);

    SheetSettings settings(*KivDrwDraftingSettings::GetDraftingSettings(),
                           *KivDrwSketcherSettings::GetSketcherSettings(), KivDrwRepository());
    DraftingWindow window(settings, diagnostics, ToQt(KivSettingRepository::EditedLayer()));
    std::optional<SettingsWatch> watch;
    if (auto* const repository = KivSettingRepository::GetRepository("DraftingOptions")) {
        window.Follow(watch.emplace(*repository), *KivDrwSketcherSettings::GetSketcherSettings());
    }
    const KivUnicodeString page(line.page);
    if (!line.screenshots) return ShowWindow(window, page);
    DraftingPictures pictures(*line.screenshots, std::cout, std::cerr);
    return pictures.Write(window, page) ? DraftingStart::kDone : DraftingStart::kCannotWrite;
}
