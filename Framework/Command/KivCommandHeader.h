#pragma once

#include "Base/KivString.h"

#include <functional>

// What menus and toolbars know of a command: its name and whether it is available at the moment. Owned by the
// framework from its declaration to the end of the process.
class KivCommandHeader {
public:
    // The header of that name, made available if there is none yet.
    static KivCommandHeader* Declare(const KivString& name);
    // The header of that name, or null; the second argument is the framework's (0: the running application).
    static KivCommandHeader* GetHeaderFromList(const KivString& name, int application);

    const KivString& GetName() const { return _name; }
    bool IsAvailable() const { return _available; }
    void BecomeAvailable() { SetAvailable(true); }
    void BecomeUnavailable() { SetAvailable(false); }

    // Called after each change; one view a header, an empty function takes it away, also from within it.
    void SetView(std::function<void(bool available)> view) { _view = std::move(view); }

private:
    explicit KivCommandHeader(const KivString& name) : _name(name) {}
    void SetAvailable(bool available);

    KivString _name;
    bool _available = true;
    std::function<void(bool)> _view;
};
