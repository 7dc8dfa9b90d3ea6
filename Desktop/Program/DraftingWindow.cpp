#include "Program/DraftingWindow.h"

#include "Common/DialogKeyboard.h"
#include "Common/NativeText.h"
#include "Common/SettingsWatch.h"
#include "Common/WindowPlace.h"
#include "Options/OptionsWindow.h"
#include "Program/DraftingCommands.h"
#include "Program/DraftingMessages.h"
#include "Program/DraftingTree.h"
#include "Program/DraftingWelcome.h"
#include "Sheet/SheetAccessible.h"
#include "Sheet/SheetUnit.h"
#include "Sheet/SheetView.h"
#include "Workbench/KivSketcherSettings.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <cmath>

namespace {

// Whoever asks a widget what it is keeps the answer, even that of its base class.
SheetView* MakeSheet(const SheetSettings& settings)
{
    SheetAccessible::Install();
    return new SheetView(settings);
}

} // namespace

DraftingWindow::DraftingWindow(const SheetSettings& settings, const DraftingDiagnostics& diagnostics,
                               const QString& administrator)
    : _settings(settings), _diagnostics(diagnostics), _sheet(MakeSheet(settings))
{
    setObjectName("drafting");
    setWindowTitle(administrator.isEmpty() ? DraftingText("WindowTitle")
                                           : DraftingText("WindowTitleAdministrator").arg(administrator));
    setCentralWidget(_sheet);
    BuildTree();
    BuildStatus();
    BuildMenus();
    resize(WindowPlace::OnScreen(*this, QRect(pos(), sizeHint())).size());
    WindowPlace::KeepOnScreen(*this);
    _sheet->setFocus();
}

void DraftingWindow::BuildMenus()
{
    const auto add = [this](QMenu* menu, const char* text, const QList<QKeySequence>& keys, auto does) {
        QAction* const action = menu->addAction(DraftingText(text));
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, does);
        return action;
    };
    QMenu* const file = menuBar()->addMenu(DraftingText("MenuFile"));
    add(file, "MenuNew", {QKeySequence::New}, [this] { (new DraftingWelcome(*_sheet, this))->show(); });
    file->addSeparator();
    add(file, "MenuQuit", {QKeySequence(Qt::CTRL | Qt::Key_Q)}, [this] {
        close();
    })->setMenuRole(QAction::QuitRole);

    QMenu* const edit = menuBar()->addMenu(DraftingText("MenuEdit"));

    QMenu* const view = menuBar()->addMenu(DraftingText("MenuView"));
    add(view, "MenuZoomIn", {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
        [this] { _sheet->ZoomIn(); });
    add(view, "MenuZoomOut", {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { _sheet->ZoomOut(); });
    add(view, "MenuZoomFit", {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { _sheet->ZoomToFit(); });
    add(view, "MenuZoomFull", {QKeySequence(Qt::CTRL | Qt::Key_1)}, [this] { _sheet->ZoomTo(1.0); });
    view->addSeparator();
    QAction* const tree = findChild<QDockWidget*>("treeDock")->toggleViewAction();
    tree->setText(DraftingText("MenuTree"));
    view->addAction(tree);

    QMenu* const format = menuBar()->addMenu(DraftingText("MenuFormat"));
    (new DraftingCommands(*this, *_sheet))->AddTo(*edit, *format);

    QMenu* const tools = menuBar()->addMenu(DraftingText("MenuTools"));
    add(tools, "MenuOptions", {QKeySequence(Qt::CTRL | Qt::Key_Comma)}, [this] {
        OpenOptions();
    })->setMenuRole(QAction::PreferencesRole);
    add(tools, "MenuLog", {}, [this] { OpenLog(); });

    QMenu* const help = menuBar()->addMenu(DraftingText("MenuHelp"));
    add(help, "MenuAbout", {}, [this] { OpenAbout(); })->setMenuRole(QAction::AboutRole);
}

void DraftingWindow::BuildTree()
{
    auto* const tree = new DraftingTree(_settings);
    auto* const dock = new QDockWidget(DraftingText("TreeTitle"), this);
    dock->setObjectName("treeDock");
    dock->setWidget(tree);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    connect(tree, &DraftingTree::ViewChosen, _sheet, [this] { _sheet->SelectView(true); });
}

void DraftingWindow::BuildStatus()
{
    auto* const message = new DraftingMessage(_diagnostics);
    connect(message, &DraftingMessage::LogWanted, this, &DraftingWindow::OpenLog);
    auto* const position = new QLabel;
    auto* const angle = new QLabel(DraftingText("StatusAngle").arg(SheetUnit::PrintAngle(0.0)));
    auto* const zoom = new QLabel;
    position->setObjectName("position");
    // Wide enough for what it usually says, so that its neighbors do not dance with the cursor.
    position->setMinimumWidth(fontMetrics().averageCharWidth() * 26);
    statusBar()->addWidget(message, 1);
    statusBar()->addPermanentWidget(position);
    statusBar()->addPermanentWidget(angle);
    statusBar()->addPermanentWidget(zoom);
    const auto showZoom = [zoom](double factor) {
        zoom->setText(DraftingText("StatusZoom").arg(std::lround(factor * 100.0)));
    };
    showZoom(_sheet->Camera().Zoom());
    connect(_sheet, &SheetView::ZoomChanged, zoom, showZoom);
    connect(_sheet, &SheetView::PositionChanged, position, &QLabel::setText);
    connect(_sheet, &SheetView::RotationChanged, angle, [angle](double degrees) {
        angle->setText(DraftingText("StatusAngle").arg(SheetUnit::PrintAngle(degrees)));
    });
}

void DraftingWindow::OpenOptions(const KivUnicodeString& page)
{
    // The sheet has what was chosen there so far: nothing is lost, and it would wait behind the options.
    for (auto* const welcome : findChildren<DraftingWelcome*>()) welcome->close();
    _options.Open(*_sheet, page);
}

void DraftingWindow::Follow(const SettingsWatch& watch, KivSketcherSettings& sketcher)
{
    connect(&watch, &SettingsWatch::Changed, this, [this, &sketcher] {
        sketcher.GridModify();
        sketcher.SnapModify();
        if (OptionsWindow* const options = _options.Current()) options->Refill();
    });
}

void DraftingWindow::Welcome()
{
    if (!_settings.Style().skipsWelcome) (new DraftingWelcome(*_sheet, this))->show();
}

void DraftingWindow::OpenLog()
{
    auto* log = findChild<DraftingLog*>();
    if (!log) log = new DraftingLog(_diagnostics, this);
    log->show();
    log->raise();
    log->activateWindow();
}

void DraftingWindow::OpenAbout()
{
    auto* const about = new QMessageBox(QMessageBox::NoIcon, DraftingText("AboutTitle"),
                                        DraftingText("AboutText").arg(KIV_VERSION), QMessageBox::Close, this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    DialogKeyboard::OpenAfterEvent(*about); // the menu has the keyboard until then
}

void DraftingWindow::closeEvent(QCloseEvent* event)
{
    _options.Cancel();
    // Panels of this window do not keep the program alive.
    for (QDialog* const dialog : findChildren<QDialog*>()) dialog->close();
    event->accept();
}
