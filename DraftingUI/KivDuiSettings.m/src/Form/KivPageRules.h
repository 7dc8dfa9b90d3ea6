#pragma once

#include "Lock/KivDrwLockDialog.h"

#include <functional>
#include <vector>

// Which controls of a page are available when: each dependency is stated once, and holds whenever the page is
// shown or has stored a value. A lock stays stronger.
class KivPageRules {
public:
    using Condition = std::function<bool()>;

    // The controls are available while the condition holds; each stands under one condition at most. They
    // belong to the dialog tree; one that was left out is null.
    void AvailableWhile(Condition condition, const std::vector<KivDrwLockDialog*>& controls);
    void Apply() const;

private:
    struct Rule {
        Condition condition;
        std::vector<KivWeakPtr<KivDrwLockDialog>> controls;
    };
    std::vector<Rule> _rules;
};
