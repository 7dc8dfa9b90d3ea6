#include "DraftingPictures.h"

#include "Dialog/KivDlgPushButton.h"
#include "Dialog/KivUserHand.h"
#include "DraftingText.h"
#include "DraftingWindow.h"
#include "NativeDialog.h"
#include "NativeText.h"
#include "OptionsPageView.h"
#include "OptionsWindow.h"
#include "SheetView.h"

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

void CollectButtons(const KivDialog& node, std::vector<KivDlgPushButton*>& buttons)
{
    for (KivDialog* child : node.Children()) {
        if (child->IsAKindOf(KivDlgPushButton::Name))
            buttons.push_back(static_cast<KivDlgPushButton*>(child));
        CollectButtons(*child, buttons);
    }
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
    window.show();
    if (!Save(window, "drafting")) return false;

    // Without a memory: pictures neither depend on how the user left the window nor change it.
    OptionsWindow options(DraftingOptions::NewSession(), OptionsMemory(QString()));
    options.show();
    const KivOptionsSession::Page* const only = page.IsEmpty() ? nullptr : options.Session()->FindPage(page);
    bool isSaved = true;
    for (const KivOptionsSession::Page& shown : options.Session()->Pages()) {
        if (only && &shown != only) continue;
        options.ShowPage(KivUnicodeString(shown.editor));
        options.resize(980, 760);
        ShowWhole(options, &options.PageView(options.CurrentPage()));
        const QString name = "options-" + FileName(shown.title);
        isSaved = isSaved && Save(options, name) && WriteWindows(options, *shown.frame, name);
    }
    options.reject();
    return isSaved;
}

bool DraftingPictures::WriteWindows(const OptionsWindow& options, const KivDialog& page, const QString& name)
{
    std::vector<KivDlgPushButton*> buttons;
    CollectButtons(page, buttons);
    bool isSaved = true;
    for (KivDlgPushButton* button : buttons) {
        if (!KivUserHand::Press(*button)) continue;
        for (NativeDialog* window : options.findChildren<NativeDialog*>()) {
            if (!window->isVisible()) continue;
            ShowWhole(*window, window->findChild<QScrollArea*>());
            isSaved = isSaved && Save(*window, name + "-" + FileName(window->Node()->GetTitle()));
            window->close();
        }
        KivCommand::DrainDelayedDestruction();
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
