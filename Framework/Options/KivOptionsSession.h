#pragma once

#include "Base/KivDiagnostic.h"
#include "Options/KivEditorPage.h"
#include "Options/KivUserSettingsManager.h"

#include <memory>
#include <set>
#include <vector>

// One opening of the options dialog: an editor and a built, filled page for each tab, from the opening to OK
// or Cancel. A tab whose editor builds nothing is not offered.
//
// Whoever is told of what it does may call it, or destroy it: the call that is under way ends without it.
class KivOptionsSession {
public:
    struct Page {
        KivString editor;       // class of its editor
        KivUnicodeString title; // in the user's language
        KivString icon;         // name, or empty
        KivUnicodeString help;  // one sentence
        KivWeakPtr<KivEditorPage> frame;
        KivVar<KivIUserSettings> settings;
        int position = 0; // among the tabs
    };

    explicit KivOptionsSession(KivUserSettingsManager& manager);
    ~KivOptionsSession();
    KivOptionsSession(const KivOptionsSession&) = delete;
    KivOptionsSession& operator=(const KivOptionsSession&) = delete;

    // The tabs, in the order of their positions.
    const std::vector<Page>& Pages() const { return _pages; }
    // The titles of the tabs that are not offered.
    const std::vector<KivUnicodeString>& EmptyTabs() const { return _emptyTabs; }
    // The tab that a person calls so: its title or the class of its editor, in any case; null when there is
    // none.
    const Page* FindPage(const KivUnicodeString& name) const;
    // The tree that holds all pages.
    KivDialog& Root() { return *_root; }

    // Closes every window that a page has opened: what it holds is stored then, and has to be there before
    // the editors decide on it. False when somebody who was told of it has destroyed this session.
    bool CloseWindows();
    // OK: every window that a page has opened is closed, then every editor commits. The errors that were met
    // on the way, empty when all is safe; after an error nothing is lost and the session goes on. Waits for
    // another program that is saving, unless the caller has his KivSettingTurn.
    std::vector<KivDiagnostic> Commit();
    // Cancel: the same windows are closed, then every editor takes its changes back, and every page shows so.
    void Cancel();
    // Shows on every page what is in force now, after it was changed from elsewhere. A page on which the user
    // is typing, or has chosen something in one of its windows that is stored only when that is closed, waits
    // until he is done.
    void Refill();
    // The same on one page: a tab that is turned to shows what was changed on others.
    void Refill(const Page& page);
    // Called by hosts between events: fills the pages that have waited long enough.
    void RefillWaiting();
    // Reset: this tab returns to the administrator's values and shows them, whatever the user is doing there.
    void Reset(const Page& page);

private:
    using Operation = void (KivIUserSettings::*)(KivSettingRepository*);
    void Add(const KivUserSettingsManager::Editor& editor);
    bool Tell(Operation operation);
    void Fill(const Page& page);

    std::unique_ptr<KivDlgFrame> _root;
    std::vector<Page> _pages;
    std::vector<KivUnicodeString> _emptyTabs;
    Operation _underWay = nullptr;
    std::set<KivString> _waiting; // the editors of those pages
};
