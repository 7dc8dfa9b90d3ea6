#pragma once

#include "NativeBuilder.h"
#include "NativePiece.h"
#include "TestPage.h"

#include <QScrollArea>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

inline std::unique_ptr<QScrollArea> ShowInArea(KivEditorPage& page, const QSize& size)
{
    auto area = std::make_unique<QScrollArea>();
    area->setWidgetResizable(true);
    area->setWidget(NativeBuilder::Build(page, area.get()));
    area->resize(size);
    area->show();
    area->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(area.get()));
    return area;
}

// The test page in a scroll area that is smaller than the page.
class NativeFixture : public testing::Test {
protected:
    using Nodes = std::initializer_list<KivDialog*>;

    void SetUp() override { area = ShowInArea(*page, QSize(700, 250)); }

    static QWidget* WidgetOf(const KivDialog* node) { return NativePiece::Of(node)->Widget(); }
    static KivDlgLock* LockOf(const KivDialog* control) { return control->GetLock(); }
    static QPoint PlaceOf(const KivDialog* node)
    {
        const QWidget* widget = WidgetOf(node);
        return widget->mapTo(widget->window(), QPoint());
    }

    std::unique_ptr<KivEditorPage> page = std::make_unique<KivEditorPage>(nullptr, "page");
    TestPage tree{*page};
    std::unique_ptr<QScrollArea> area;
};

// Counts a control's notifications.
class Listener : public KivCommand {
public:
    Listener(KivCommand* from, KivNotification* notification) : KivCommand(nullptr, "listener")
    {
        AddAnalyseNotificationCB(from, notification, &Listener::Hear, nullptr);
    }
    void Hear(KivCommand*, KivNotification*, void*) { ++heard; }
    int heard = 0;
};
