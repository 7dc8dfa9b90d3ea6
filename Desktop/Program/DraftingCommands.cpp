#include "Program/DraftingCommands.h"

#include "Command/KivCommandHeader.h"
#include "Common/NativeText.h"
#include "KivDrwWorkbench.h"
#include "KivIDrwDraftingSettingAtt.h"
#include "Sheet/SheetView.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>

namespace {

constexpr int kSaidFor = 5000; // ms

constexpr struct {
    SheetLine line;
    const char* text;
} kStyles[] = {
    {SheetLine::Standard, "StyleStandard"}, {SheetLine::Thin, "StyleThin"}, {SheetLine::Thick, "StyleThick"}};

// Later only the Administration tab switches commands, with each OK, Cancel and Reset.
void ApplySettings()
{
    const auto attributes = KivDrwSettingController<KivIDrwDraftingSettingAtt>();
    if (attributes) KivDrwCommandAvailability::Apply(*attributes.Get());
}

} // namespace

DraftingCommands::DraftingCommands(QMainWindow& window, SheetView& sheet, const DraftingMemory& memory)
    : QObject(&window), _window(window), _sheet(sheet), _memory(memory)
{
    SheetLook look = _sheet.Look();
    look.line = _memory.DefaultLine();
    _sheet.SetLook(look);
}

DraftingCommands::~DraftingCommands()
{
    for (KivCommandHeader* header : _headers) header->SetView({});
}

void DraftingCommands::AddTo(QMenu& edit, QMenu& format)
{
    for (QMenu* const menu : {&edit, &format}) menu->setToolTipsVisible(true);
    ShowSheetBackground(edit);
    AddStyles(format);
    format.addSeparator();
    QAction* const keep = format.addAction(DraftingText("MenuSetAsDefault"));
    connect(keep, &QAction::triggered, this, [this] {
        _memory.SetDefaultLine(_sheet.Look().line);
        Say(DraftingText("StyleKept"));
    });
    Govern(*keep, "DrwSetAsDefault", "MenuSetAsDefaultHelp");
    QAction* const drop = format.addAction(DraftingText("MenuResetDefaults"));
    connect(drop, &QAction::triggered, this, [this] {
        _memory.DropDefaultLine();
        Say(DraftingText("StyleDropped"));
    });
    Govern(*drop, "DrwResetDefaults", "MenuResetDefaultsHelp");
    ApplySettings();
}

void DraftingCommands::ShowSheetBackground(QMenu& edit)
{
    QAction* const background = edit.addAction(DraftingText("MenuBackground"));
    background->setCheckable(true);
    connect(background, &QAction::toggled, this, [this](bool isBackground) {
        SheetLook look = _sheet.Look();
        look.isBackground = isBackground;
        _sheet.SetLook(look);
    });
    // Who is in the background when it is switched off would not get out of it.
    connect(background, &QAction::enabledChanged, this, [background](bool enabled) {
        if (!enabled) background->setChecked(false);
    });
    Govern(*background, "KivDrwEditFrame", "MenuBackgroundHelp");
}

void DraftingCommands::AddStyles(QMenu& format)
{
    QMenu* const styles = format.addMenu(DraftingText("MenuStyle"));
    auto* const group = new QActionGroup(styles);
    for (const auto& [line, text] : kStyles) {
        QAction* const style = styles->addAction(DraftingText(text));
        style->setCheckable(true);
        style->setChecked(line == _sheet.Look().line);
        group->addAction(style);
        connect(style, &QAction::triggered, this, [this, chosen = line] {
            SheetLook look = _sheet.Look();
            look.line = chosen;
            _sheet.SetLook(look);
        });
    }
    Govern(*styles->menuAction(), "DrwStyle", "MenuStyleHelp");
}

void DraftingCommands::Govern(QAction& entry, const char* command, const char* help)
{
    KivCommandHeader* const header = KivCommandHeader::Declare(command);
    const auto show = [&entry, usual = DraftingText(help)](bool available) {
        entry.setEnabled(available);
        entry.setToolTip(available ? usual : DraftingText("SwitchedOff"));
        entry.setStatusTip(entry.toolTip());
    };
    header->SetView(show);
    _headers.push_back(header);
    show(header->IsAvailable());
}

void DraftingCommands::Say(const QString& text)
{
    _window.statusBar()->showMessage(text, kSaidFor);
}
