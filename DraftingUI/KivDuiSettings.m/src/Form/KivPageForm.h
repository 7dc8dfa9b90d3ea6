#pragma once

#include "Form/KivControlBinding.h"
#include "Form/KivFormGroup.h"

#include <memory>
#include <optional>
#include <vector>

// The groups and rows of a page or of a window of it, as they are declared: builds each control from its
// setting's lock record, connects it to the owner's callback, and keeps its binding.
class KivPageForm {
public:
    // Whether a control is made whose lock record is refused.
    enum class Refused { Build, LeaveOut };

    explicit KivPageForm(KivCommand& owner, Refused refused = Refused::Build)
        : _owner(owner), _refused(refused)
    {}

    // The method of the owner that the controls declared from now on are connected to.
    template <class Owner> void SetCallback(void (Owner::*callback)(KivCommand*, KivNotification*, void*))
    {
        _callback = static_cast<KivCommand::Method>(callback);
    }

    // A titled group on a surface, from the given cell of its grid downwards. The icon's name may be empty.
    KivFormGroup Group(KivDialog& surface, const KivString& name, const KivString& icon, short row = 0,
                       short column = 0, short rows = 1);

    // Asks for every lock record and shows it. Controls that have just been made have theirs.
    void ShowLocks();
    // Shows every property.
    void Show();
    // Shows one property wherever it is shown.
    void Show(const KivProperty& property);
    // Stores the value of the control that sent a notification, and shows it wherever else it is shown.
    void Take(KivCommand* from);
    // Stores those of these properties that have a control, in this order; what the controls show was taken
    // before. Their controls show then what is in force.
    void Store(const KivProperties& properties);
    // Takes what the sender shows into its property, runs its rule, and stores nothing.
    void Read(const KivCommand* from);
    // Takes what every control shows into the properties, and stores nothing.
    void ReadAll();
    // Whether a control of this property sent a notification.
    bool IsSender(const KivProperty& property, const KivCommand* from) const;

    // For rows that are being declared. The lock record that a control is to be made with; none when it is
    // left out.
    std::optional<KivSettingInfo> RecordOf(const KivProperty& property) const;
    void Add(std::unique_ptr<KivControlBinding> binding);
    void Connect(KivCommand* control, KivNotification* notification);

private:
    KivCommand& _owner;
    KivCommand::Method _callback = nullptr;
    Refused _refused;
    std::vector<std::unique_ptr<KivControlBinding>> _bindings;
};
