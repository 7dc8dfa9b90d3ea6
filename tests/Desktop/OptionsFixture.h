#pragma once

#include "NativePiece.h"
#include "NativeSpinner.h"
#include "OptionsWindow.h"
#include "TestEditors.h"
#include "TestHand.h"

#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

// The options window over the test's own pages; libraries that are loaded may offer others beside them.
class OptionsFixture : public testing::Test {
protected:
    void SetUp() override
    {
        TestEditor::log.clear();
        TestEditor::failing = false;
        TestEditor::stored = 0.1;
        Open();
    }
    void TearDown() override
    {
        window.reset();
        KivCommand::DrainDelayedDestruction();
        EXPECT_EQ(KivBaseUnknown::LiveObjects(), before);
    }
    // On the page that is remembered, or else on the first of the test's.
    void Open(const OptionsMemory& memory = OptionsMemory(QString()))
    {
        window = std::make_unique<OptionsWindow>(OpenTestSession(), memory);
        ASSERT_TRUE(!memory.Page().IsEmpty() || window->ShowPage("TestEditor"));
        window->show();
    }
    static void Activate(QWidget* widget)
    {
        widget->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(widget));
    }
    KivDialog* Frame(const char* page = "TestEditor")
    {
        return window->Session()->FindPage(page)->frame.Get();
    }
    KivDialog* Node(const char* name) { return Frame()->FindDialog(name); }
    QWidget* WidgetOf(const char* name) { return NativePiece::Of(Node(name))->Widget(); }
    NativeSpinner* Spinner() { return static_cast<NativeSpinner*>(WidgetOf("editorH_dialog")); }
    QPushButton* Button(const char* text)
    {
        for (QPushButton* button : window->findChildren<QPushButton*>())
            if (button->text() == text) return button;
        return nullptr;
    }

    long before = KivBaseUnknown::LiveObjects();
    std::unique_ptr<OptionsWindow> window;
};
