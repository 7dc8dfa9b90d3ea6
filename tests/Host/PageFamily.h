#pragma once

#include "OptionsPages.h"
#include "PageTables.h"

#include <algorithm>
#include <set>
#include <sstream>

// What holds for every page alike.
class PageFamily : public OptionsPages, public testing::WithParamInterface<PageTable> {
protected:
    void SetUp() override
    {
        box.SetVariable("KivCollectionStandard", box.root.string());
        for (const char* style : {"Blue.xml", "Green.XML", "Red.xml"})
            box.Write(box.root / "generativeparameters" / style, "");
    }
    void OpenWith(const std::string& more = {}, const std::vector<std::string>& instead = {})
    {
        std::string content = more;
        for (const auto* lines : {&table.enabling, &instead}) // the last one counts
            for (const std::string& line : *lines) content += line + "\n";
        box.Write(file, content);
        OpenAll();
    }
    // With the windows of the page.
    void OpenAll()
    {
        Open();
        ASSERT_NE(session->FindPage(table.page.c_str()), nullptr);
        for (const std::string& button : table.buttons) ASSERT_TRUE(Press(button));
    }
    static std::set<std::string> Changed(const Values& before, const Values& after)
    {
        std::set<std::string> changed;
        for (const auto& [key, value] : after) {
            const auto was = before.find(key);
            if (was == before.end() || was->second != value) changed.insert(key);
        }
        return changed;
    }
    std::string Shown()
    {
        std::string shown;
        for (const TableRow& row : table.rows)
            shown += std::string(Control(row.control).GetShownValue().View()) + "\n";
        return shown;
    }
    void DriveAll()
    {
        for (const TableRow& row : table.rows) Drive(Control(row.control));
    }
    std::set<std::string> Keys() const
    {
        std::set<std::string> keys;
        const auto add = [&](const std::vector<TableRow>& rows) {
            for (const TableRow& row : rows) keys.insert(row.keys.begin(), row.keys.end());
        };
        add(table.rows);
        for (const WindowTable& window : table.windows) add(window.rows);
        return keys;
    }
    // Whether the page, not minding locks, has the control of a row enabled.
    bool IsAsked(const TableRow& row)
    {
        if (row.enabledBy == kByItsPage) return true;
        std::istringstream names{row.enabledBy};
        bool none = true;
        for (std::string name; std::getline(names, name, '|'); none = false) {
            const auto its = std::find_if(table.rows.begin(), table.rows.end(),
                                          [&](const TableRow& other) { return other.control == name; });
            if (IsChecked(name) && IsAsked(*its)) return true;
        }
        return none;
    }
    KivDlgDialog& OpenWindow(const WindowTable& window)
    {
        OpenWith({}, window.enabling);
        EXPECT_TRUE(Press(window.button));
        return Node<KivDlgDialog>(window.name);
    }
    const PageTable& table = GetParam();
};
