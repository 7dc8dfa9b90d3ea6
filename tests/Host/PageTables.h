#pragma once

#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

// Enabled by rules that its page proves itself.
inline constexpr const char* kByItsPage = "?";

// A control and the keys that it edits; pages.txt says more.
struct TableRow {
    std::string control;
    std::vector<std::string> keys;
    std::string enabledBy;
};

// A window that stores what it shows when it is closed.
struct WindowTable {
    std::string button;                // that opens it
    std::string name;                  // of the window
    std::string catalogue;             // of its texts
    std::vector<std::string> enabling; // settings with which it can be opened and every control is enabled
    std::vector<TableRow> rows;
};

struct PageTable {
    std::string page;                  // its title
    std::string catalogue;             // of its texts
    std::vector<std::string> enabling; // settings with which every control is enabled
    std::vector<TableRow> rows;
    std::vector<std::string> buttons; // that open windows with further rows
    std::vector<WindowTable> windows;
};

// How a failing test names it.
inline void PrintTo(const PageTable& table, std::ostream* out)
{
    *out << table.page;
}

inline std::vector<PageTable> ReadPageTables()
{
    std::vector<PageTable> tables;
    std::ifstream file(KIV_TEST_DATA "/pages.txt");
    for (std::string line, word; std::getline(file, line);) {
        std::istringstream words(line);
        if (line.empty() || line[0] == '#' || !(words >> word >> std::ws)) continue;
        if (word == "page") {
            PageTable& table = tables.emplace_back();
            words >> table.page >> table.catalogue;
        } else if (word == "button") {
            words >> tables.back().buttons.emplace_back();
        } else if (word == "window") {
            WindowTable& window = tables.back().windows.emplace_back();
            words >> window.button >> window.name >> window.catalogue;
        } else {
            PageTable& table = tables.back();
            const bool isPages = table.windows.empty();
            if (word == "with") {
                auto& enabling = isPages ? table.enabling : table.windows.back().enabling;
                std::getline(words, enabling.emplace_back());
                continue;
            }
            TableRow& row = (isPages ? table.rows : table.windows.back().rows).emplace_back();
            std::string keys;
            words >> row.control >> keys >> row.enabledBy;
            std::istringstream each(keys);
            while (std::getline(each, word, ',')) row.keys.push_back(word);
        }
    }
    return tables;
}

inline const std::vector<PageTable>& PageTables()
{
    static const std::vector<PageTable> tables = ReadPageTables();
    return tables;
}
