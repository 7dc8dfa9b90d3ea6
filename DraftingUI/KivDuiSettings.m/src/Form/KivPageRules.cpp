#include "Form/KivPageRules.h"

#include <utility>

void KivPageRules::AvailableWhile(Condition condition, const std::vector<KivDrwLockDialog*>& controls)
{
    Rule rule{std::move(condition), {}};
    for (KivDrwLockDialog* control : controls) {
        if (control) rule.controls.emplace_back(control);
    }
    _rules.push_back(std::move(rule));
}

void KivPageRules::Apply() const
{
    for (const auto& [condition, controls] : _rules) {
        const unsigned long sensitivity = condition() ? KivDlgEnabled : KivDlgDisabled;
        for (const auto& control : controls) {
            if (control) control->SetSensitivity(sensitivity);
        }
    }
}
