#pragma once

#include "Host/OptionsPages.h"
#include "Native/NativePiece.h"
#include "Native/NativeSpinner.h"
#include "Options/OptionsPageView.h"
#include "Options/OptionsWindow.h"
#include "TestHand.h"

#include <QPushButton>
#include <QTest>

// The options window over the drafting library's pages, in settings of its own with two locks of a site.
class OptionsFixture : public OptionsPages {
protected:
    void SetUp() override
    {
        box.NameLayers({"site"});
        box.Write(box.File("site"), "lock int Drw_settings_GridSnapPt = 1\nlock BackgroundColorRedDitto\n");
        Open();
    }
    void TearDown() override
    {
        window.reset();
        OptionsPages::TearDown();
    }
    void Open() override { OpenAt("KivDrwOptGalEditor"); } // in any language
    // On a page, or else on the one that is remembered.
    void OpenAt(const char* page, const OptionsMemory& memory = OptionsMemory(QString()))
    {
        window.reset();
        OptionsPages::Open();
        window = std::make_unique<OptionsWindow>(std::move(session), memory);
        ASSERT_TRUE(!page || window->ShowPage(page));
        window->show();
        Activate(window.get());
    }
    static void Activate(QWidget* widget)
    {
        widget->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(widget));
    }
    // What was deleted later is gone.
    static void Settle()
    {
        QTest::qWait(1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    KivDialog* Find(const std::string& name) override
    {
        return window->Session()->Root().FindDialog(name.c_str());
    }
    KivDlgLock& Lock(const std::string& row) { return Node<KivDlgLock>(row + "Lock"); }
    OptionsPageView& View() { return window->PageView(window->CurrentPage()); }

    template <class Widget = QWidget> static Widget* WidgetOf(const KivDialog& node)
    {
        return static_cast<Widget*>(NativePiece::Of(&node)->Widget());
    }
    // Of a row's control.
    template <class Widget = QWidget> Widget* WidgetOf(const std::string& row)
    {
        return WidgetOf<Widget>(Control(row));
    }
    QPoint PositionOf(const KivDialog& node) const { return WidgetOf(node)->mapTo(window.get(), QPoint()); }
    QPushButton* Button(const char* text)
    {
        for (QPushButton* button : window->findChildren<QPushButton*>())
            if (button->text().remove('&') == text) return button;
        return nullptr;
    }

    std::unique_ptr<OptionsWindow> window;
};

// Counts a control's notifications.
class Listener : public KivCommand {
public:
    Listener(KivCommand& from, KivNotification* notification) : KivCommand(nullptr, "listener")
    {
        AddAnalyseNotificationCB(&from, notification, &Listener::Hear, nullptr);
    }
    void Hear(KivCommand*, KivNotification*, void*) { ++heard; }
    int heard = 0;
};
