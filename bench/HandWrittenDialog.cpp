#include "HandWrittenDialog.h"

#include "Base/KivTextCatalogue.h"
#include "Dialog/KivColor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QIcon IconFrom(const char* name)
{
    const KivUnicodeString file = KivTextCatalogue::FindResource(KivUnicodeString("icons/") + name + ".svg");
    return QIcon(QString::fromUtf8(file.ConvertToChar()));
}

QIcon Swatch(const KivColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(
        QColor(static_cast<int>(color.red), static_cast<int>(color.green), static_cast<int>(color.blue)));
    return pixmap;
}

} // namespace

HandWrittenDialog::HandWrittenDialog()
{
    _padlock = QIcon(IconFrom("CheckLock").pixmap(16, 16));
    auto* pages = new QListWidget;
    for (const char* tab : {"General", "Layout", "View", "Generation", "Geometry", "Dimension",
                            "Manipulators", "Annotation", "Compatibility", "Administration"})
        new QListWidgetItem(IconFrom((std::string("I_Tab") + tab).c_str()), tab, pages);
    pages->setMaximumWidth(120);
    auto* page = new QWidget;
    _page = new QVBoxLayout(page);

    AddCheck(AddGroup("Ruler", ""), 0, 1, "Show &ruler", false);
    QGridLayout* grid = AddGroup("Grid", "I_DisplayGrid");
    AddCheck(grid, 0, 1, "&Display grid", true);
    AddCheck(grid, 1, 1, "&Snap to point", true);
    AddCheck(grid, 2, 1, "Allow dist&ortions", false);
    AddLabel(grid, 3, "&Primary spacing (H, V)");
    AddSpinner(grid, 3, 3, 100.0, " mm");
    AddSpinner(grid, 3, 5, 100.0, " mm");
    AddLabel(grid, 4, "&Graduations (H, V)");
    AddSpinner(grid, 4, 3, 10.0, "");
    AddSpinner(grid, 4, 5, 10.0, "");
    QGridLayout* rotation = AddGroup("Rotation", "I_Rotate");
    AddLabel(rotation, 0, "Snap ang&le");
    AddSpinner(rotation, 0, 3, 15.0, "°");
    AddCheck(rotation, 1, 1, "S&nap automatically", false);
    QGridLayout* colors = AddGroup("Colors", "I_ColorChooser");
    for (const int row : {0, 1}) {
        AddLabel(colors, row, row == 0 ? "S&heet background" : "D&etail sheet background");
        AddColor(colors, row, 3);
        AddCheck(colors, row, 5, row == 0 ? "Grad&uated" : "Graduated (de&tail sheet)", false);
    }
    QGridLayout* tree = AddGroup("Tree", "I_Formula");
    AddCheck(tree, 0, 1, "Display para&meters", true);
    AddCheck(tree, 1, 1, "Display relat&ions", true);
    QGridLayout* axis = AddGroup("View axis", "I_DisplayViewReferential");
    AddCheck(axis, 0, 1, "Display in the &current view", true);
    AddCheck(axis, 1, 1, "&Zoomable", true);
    AddLabel(axis, 2, "Re&ference size");
    AddSpinner(axis, 2, 3, 30.0, " mm");
    AddCheck(AddGroup("Start of the workbench", ""), 0, 1, "Hide the ne&w drawing dialog", false);

    auto* scroll = new QScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    auto* stack = new QStackedWidget;
    stack->addWidget(scroll);
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Reset);
    auto* upper = new QHBoxLayout;
    upper->addWidget(pages);
    upper->addWidget(stack, 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(upper);
    all->addWidget(buttons);
}

QGridLayout* HandWrittenDialog::AddGroup(const char* title, const char* icon)
{
    auto* box = new QGroupBox(title);
    auto* row = new QHBoxLayout(box);
    auto* picture = new QLabel;
    picture->setPixmap(IconFrom(icon).pixmap(32, 32));
    row->addWidget(picture, 0, Qt::AlignTop);
    auto* grid = new QGridLayout;
    grid->setColumnStretch(7, 1);
    row->addLayout(grid, 1);
    _page->addWidget(box);
    return grid;
}

void HandWrittenDialog::AddLock(QGridLayout* grid, int row, int column)
{
    auto* lock = new QToolButton;
    lock->setIcon(_padlock);
    lock->setAutoRaise(true);
    lock->setFocusPolicy(Qt::NoFocus);
    lock->setToolTip("Not set: the default applies.");
    grid->addWidget(lock, row, column - 1);
}

void HandWrittenDialog::AddCheck(QGridLayout* grid, int row, int column, const char* title, bool on)
{
    AddLock(grid, row, column);
    auto* check = new QCheckBox(title);
    check->setChecked(on);
    check->setToolTip(title);
    check->setWhatsThis(title);
    check->setAccessibleName(title);
    grid->addWidget(check, row, column, 1, column == 1 ? 6 : 1);
}

void HandWrittenDialog::AddSpinner(QGridLayout* grid, int row, int column, double value, const char* suffix)
{
    AddLock(grid, row, column);
    auto* spinner = new QDoubleSpinBox;
    spinner->setRange(0.0, 1.0e5);
    spinner->setValue(value);
    spinner->setSuffix(suffix);
    spinner->setToolTip("Distance between the main lines of the grid");
    spinner->setAccessibleName("Primary spacing");
    grid->addWidget(spinner, row, column);
}

void HandWrittenDialog::AddColor(QGridLayout* grid, int row, int column)
{
    AddLock(grid, row, column);
    auto* combo = new QComboBox;
    for (const KivNamedColor& named : KivColorPalette())
        combo->addItem(Swatch(named.color), QString::fromUtf8(KivColorName(named.color).ConvertToChar()));
    combo->addItem("More colors…");
    combo->setToolTip("Background of drawing sheets");
    combo->setAccessibleName("Sheet background");
    grid->addWidget(combo, row, column);
}

void HandWrittenDialog::AddLabel(QGridLayout* grid, int row, const char* title)
{
    grid->addWidget(new QLabel(title), row, 1);
}
