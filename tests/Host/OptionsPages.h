#pragma once

#include "Component/KivLibrary.h"
#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgDialog.h"
#include "Dialog/KivDlgEditor.h"
#include "Dialog/KivDlgLock.h"
#include "Dialog/KivDlgSpinner.h"
#include "Dialog/KivUserHand.h"
#include "Options/KivOptionsSession.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

// The library's pages as the options manager opens them, on settings of their own, driven by the user's hand.
class OptionsPages : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        for (const char* library : {KIV_COMPONENT_LIBRARIES}) ASSERT_TRUE(KivLoadLibrary(library));
    }
    void TearDown() override
    {
        session.reset();
        manager.reset();
        EXPECT_EQ(KivBaseUnknown::LiveObjects(), _before);
    }

    // Opens the options anew, as the next start of a program would, on what a user has stored.
    void OpenOn(const std::string& content)
    {
        box.Write(file, content);
        Open();
    }
    virtual void Open()
    {
        session.reset();
        KivSettingRepository::ForgetAll();
        if (!manager) manager = std::make_unique<KivUserSettingsManager>();
        session = std::make_unique<KivOptionsSession>(*manager);
    }
    const KivOptionsSession::Page& Page(const char* name)
    {
        const KivOptionsSession::Page* page = session->FindPage(name);
        EXPECT_NE(page, nullptr) << name;
        return *page;
    }
    virtual KivDialog* Find(const std::string& name) { return session->Root().FindDialog(name.c_str()); }
    template <class T> T& Node(const std::string& name)
    {
        KivDialog* node = Find(name);
        EXPECT_NE(node, nullptr) << name;
        return *static_cast<T*>(node);
    }
    KivDlgCheckButton& Check(const std::string& name) { return Node<KivDlgCheckButton>(name + "_dialog"); }
    KivDlgSpinner& Spinner(const std::string& name) { return Node<KivDlgSpinner>(name + "_dialog"); }
    KivComboColor& Color(const std::string& name) { return Node<KivComboColor>(name + "_dialog"); }
    KivDlgCombo& Combo(const std::string& name) { return Node<KivDlgCombo>(name + "_dialog"); }
    KivDlgRadioButton& Radio(const std::string& name) { return Node<KivDlgRadioButton>(name); }
    bool IsChecked(const std::string& name) { return Check(name).GetState() == KivDlgChecked; }
    bool IsChosen(const std::string& name) { return Radio(name).GetState() == KivDlgChecked; }
    KivHandAnswer Press(const std::string& button)
    {
        return KivUserHand::Press(Node<KivDlgPushButton>(button));
    }

    // The windows of that name, in the order of opening.
    std::vector<KivDlgDialog*> Windows(const std::string& name)
    {
        std::vector<KivDlgDialog*> windows;
        for (const KivOptionsSession::Page& page : session->Pages())
            for (KivDialog* child : page.frame->Children().front()->Children())
                if (child->KivCommand::GetName() == name.c_str())
                    windows.push_back(static_cast<KivDlgDialog*>(child));
        return windows;
    }

    // The control of a row: what its wrapper holds, else the object of that name itself.
    KivDialog& Control(const std::string& row)
    {
        KivDialog* inner = Find(row + "_dialog");
        return inner ? *inner : Node<KivDialog>(row);
    }
    // Drives a control to another value, whatever kind it is of.
    static KivHandAnswer Drive(KivDialog& control)
    {
        const auto is = [&](const char* kind) { return control.IsAKindOf(kind); };
        if (is(KivDlgCheckButton::Name)) return KivUserHand::Tick(static_cast<KivDlgCheckButton&>(control));
        if (is(KivDlgRadioButton::Name)) return KivUserHand::Choose(static_cast<KivDlgRadioButton&>(control));
        if (is(KivDlgEditor::Name)) {
            auto& editor = static_cast<KivDlgEditor&>(control);
            return KivUserHand::Type(editor, editor.GetText() + "x");
        }
        if (is(KivComboColor::Name)) {
            auto& combo = static_cast<KivComboColor&>(control);
            unsigned int red = 0, green = 0, blue = 0;
            combo.GetSelectedColor(&red, &green, &blue);
            return KivUserHand::ChooseColor(combo, red ^ 1U, green ^ 2U, blue ^ 4U);
        }
        if (is(KivDlgCombo::Name)) {
            auto& combo = static_cast<KivDlgCombo&>(control);
            return KivUserHand::Choose(combo, combo.GetLineCount() > combo.KivDlgCombo::GetSelect() + 1
                                                  ? combo.KivDlgCombo::GetSelect() + 1
                                                  : 0);
        }
        auto& spinner = static_cast<KivDlgSpinner&>(control);
        double least = 0.0, greatest = 0.0, step = 0.0;
        spinner.GetMinMaxStep(least, greatest, step);
        return KivUserHand::Turn(spinner, spinner.GetValue() < greatest ? 1 : -1);
    }

    static KivSettingRepository& Repository()
    {
        return *KivSettingRepository::GetRepository("DraftingOptions");
    }
    template <class T> static T Stored(const char* key, T value)
    {
        Repository().ReadSetting(key, &value, 1);
        return value;
    }
    using Values = std::map<std::string, std::string>;
    // Everything that the repository holds, as "key = value".
    static Values All()
    {
        Values all;
        char name[256], type[256];
        long count = 0;
        for (int restart = 1; Repository().NextAttribute(name, type, &count, restart) == S_OK; restart = 0) {
            KivSettingInfo info;
            Repository().GetInfo(name, &info, 0);
            all[name] = info.value.View();
        }
        return all;
    }

    KivSettingsSandbox box;
    std::filesystem::path file = box.File("user");
    std::unique_ptr<KivUserSettingsManager> manager;
    std::unique_ptr<KivOptionsSession> session;

private:
    long _before = KivBaseUnknown::LiveObjects();
};
