#include "Program/DraftingPictures.h"

#include "Common/NativeText.h"
#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgCombo.h"
#include "Dialog/KivHandReach.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativeDialog.h"
#include "Options/OptionsPageView.h"
#include "Options/OptionsWindow.h"
#include "Program/DraftingWindow.h"
#include "Sheet/SheetView.h"

#include <QApplication>
#include <QDir>
#include <QImageWriter>
#include <QScrollArea>
#include <ostream>

namespace {

// A file name of a title: letters and digits, with a dash for what is between.
QString FileName(const KivUnicodeString& title)
{
    QString name;
    for (const QChar letter : ToQt(title).toLower()) {
        if (letter.isLetterOrNumber())
            name += letter;
        else if (!name.isEmpty() && !name.endsWith('-'))
            name += '-';
    }
    while (name.endsWith('-')) name.chop(1);
    return name;
}

// A picture cannot be scrolled: the window becomes as large as what is in its area needs.
void ShowWhole(QWidget& window, const QScrollArea* area)
{
    QApplication::processEvents();
    if (!area || !area->widget()) return;
    const QSize missing = area->widget()->sizeHint() - area->viewport()->size();
    window.resize(window.size() + missing.expandedTo(QSize(0, 0)).boundedTo(QSize(1200, 2400)));
}

template <class Control> void Collect(const KivDialog& node, std::vector<Control*>& found)
{
    for (KivDialog* child : node.Children()) {
        if (child->IsAKindOf(Control::Name)) found.push_back(static_cast<Control*>(child));
        Collect(*child, found);
    }
}

template <class Control> std::vector<Control*> All(const KivDialog& page)
{
    std::vector<Control*> found;
    Collect(page, found);
    return found;
}

} // namespace

DraftingPictures::DraftingPictures(const std::string& directory, std::ostream& out, std::ostream& err)
    : _directory(QDir(QString::fromStdString(directory)).absolutePath()), _out(out), _err(err)
{}

bool DraftingPictures::Write(DraftingWindow& window, const KivUnicodeString& page)
{
    if (!QDir().mkpath(_directory)) {
        _err << "kivdrafting: " << DraftingText("PicturesNoDirectory").arg(_directory).toStdString() << '\n';
        return false;
    }
    window.resize(window.sizeHint()); // no screen has to hold it
    window.show();
    if (!Save(window, "drafting")) return false;

    // Without a memory: pictures neither depend on how the user left the window nor change it.
    OptionsWindow options(DraftingOptions::NewSession(), OptionsMemory(QString()));
    options.show();
    const KivOptionsSession::Page* const only = page.IsEmpty() ? nullptr : options.Session()->FindPage(page);
    bool isSaved = true;
    const auto name = [](const KivOptionsSession::Page& tab) { return "options-" + FileName(tab.title); };
    for (const KivOptionsSession::Page& tab : options.Session()->Pages()) {
        if (only && &tab != only) continue;
        options.ShowPage(KivUnicodeString(tab.editor));
        options.resize(980, 760);
        ShowWhole(options, &options.PageView(options.CurrentPage()));
        isSaved = isSaved && Save(options, name(tab)) &&
                  WriteWindows(options, All<KivDlgPushButton>(*tab.frame), name(tab));
    }
    // After the tabs, which show the settings as they are: this changes some, until the end takes it back.
    for (const KivOptionsSession::Page& tab : options.Session()->Pages()) {
        if (!only || &tab == only) isSaved = isSaved && WriteGrayWindows(options, *tab.frame, name(tab));
    }
    if (!only) {
        for (const KivUnicodeString& title : options.Session()->EmptyTabs()) {
            _err << "kivdrafting: " << DraftingText("PicturesNoTab").arg(ToQt(title)).toStdString() << '\n';
            isSaved = false;
        }
    }
    options.reject();
    return isSaved;
}

bool DraftingPictures::WriteWindows(const OptionsWindow& options,
                                    const std::vector<KivDlgPushButton*>& buttons, const QString& name)
{
    bool isSaved = true;
    for (KivDlgPushButton* button : buttons) {
        if (!KivUserHand::Press(*button)) continue;
        for (NativeDialog* window : options.findChildren<NativeDialog*>()) {
            if (!window->isVisible()) continue;
            const QString file = name + "-" + FileName(window->Node()->GetTitle());
            ShowWhole(*window, window->findChild<QScrollArea*>());
            isSaved = isSaved && (!_drawn.insert(file).second || Save(*window, file));
            window->close();
        }
        KivCommand::DrainDelayedDestruction();
    }
    return isSaved;
}

// A button that the settings make gray is reached as a user reaches it: by what enables it on its page.
bool DraftingPictures::WriteGrayWindows(const OptionsWindow& options, const KivDialog& page,
                                        const QString& name)
{
    std::vector<KivDlgPushButton*> gray = All<KivDlgPushButton>(page);
    std::erase_if(gray, [](const KivDlgPushButton* button) { return bool(KivHandReach::Reach(*button)); });
    if (gray.empty()) return true;
    bool isSaved = true;
    for (KivDlgCheckButton* check : All<KivDlgCheckButton>(page)) {
        if (!KivUserHand::Tick(*check)) continue;
        isSaved = isSaved && WriteWindows(options, gray, name);
        KivUserHand::Tick(*check);
    }
    for (KivDlgCombo* combo : All<KivDlgCombo>(page)) {
        const int before = combo->GetSelect();
        for (int line = 0; line < combo->GetLineCount(); ++line) {
            if (KivUserHand::Choose(*combo, line)) isSaved = isSaved && WriteWindows(options, gray, name);
        }
        KivUserHand::Choose(*combo, before);
    }
    return isSaved;
}

bool DraftingPictures::Save(QWidget& window, const QString& name)
{
    // Layouts and late pages settle in events.
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
    const QString file = _directory + "/" + name + ".png";
    QImageWriter writer(file, "png");
    if (!writer.write(window.grab().toImage())) {
        _err << "kivdrafting: "
             << DraftingText("PicturesNoFile").arg(file, writer.errorString()).toStdString() << '\n';
        return false;
    }
    _out << file.toStdString() << '\n';
    return true;
}
