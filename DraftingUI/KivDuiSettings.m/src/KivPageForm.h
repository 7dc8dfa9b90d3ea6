#pragma once

#include "KivFormGroup.h"
#include "KivPageRow.h"

#include <memory>
#include <vector>

class KivPageFrame;

// The groups and rows of a page, as the page declares them: builds each control from its setting's lock
// record, connects it to the page's Write, and moves values both ways.
class KivPageForm {
public:
    explicit KivPageForm(KivPageFrame& page) : _page(page) {}

    // A titled group, below those that are there. The icon's name may be empty.
    KivFormGroup Group(const KivString& name, const KivString& icon);

    // Shows every lock record.
    void ShowLocks();
    // Shows every cached value.
    void Show();
    // Stores the value of the control that sent a notification.
    void Take(KivCommand* from);

    // For rows that are being declared.
    void Add(std::unique_ptr<KivPageRow> row) { _rows.push_back(std::move(row)); }
    void Connect(KivCommand* control, KivNotification* notification);

private:
    KivPageFrame& _page;
    std::vector<std::unique_ptr<KivPageRow>> _rows;
    short _groups = 0;
};
