#pragma once

#include "KivDrwWorkbench.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

// Writes down a word for each event that the sketcher tells of.
class SketcherTest : public testing::Test {
protected:
    SketcherTest()
    {
        for (const auto& [event, word] :
             {std::pair(KivSketcherSettings::GridModification(), "grid "),
              std::pair(KivSketcherSettings::SnapModification(), "snap "),
              std::pair(KivSketcherSettings::CpltModification(), "completion "),
              std::pair(KivSketcherSettings::GeomUIModification(), "geometry "),
              std::pair(KivSketcherSettings::Visu3DUIModification(), "visualization "),
              std::pair(KivSketcherSettings::MultiModification(), "multi ")})
            _callbacks.push_back(sketcher.AddCallback(
                event, [this, said = word](KivCallbackEvent, KivNotification* notification) {
                    EXPECT_EQ(notification, nullptr);
                    heard += said + State();
                }));
    }
    ~SketcherTest() override
    {
        for (const KivCallbackId callback : _callbacks) sketcher.RemoveCallback(callback);
    }
    // What to write down beside each word.
    virtual std::string State() { return {}; }
    // All of it since the last call.
    std::string Heard() { return std::exchange(heard, {}); }

    KivSettingsSandbox box;
    KivDrwSketcherSettings& sketcher = *KivDrwSketcherSettings::GetSketcherSettings();
    std::string heard;

private:
    std::vector<KivCallbackId> _callbacks;
};
