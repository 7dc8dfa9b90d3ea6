#include "Options/KivOptionsSession.h"

#include "Base/KivDiagnosticScope.h"
#include "Base/KivTextCatalogue.h"
#include "Dialog/KivDlgDialog.h"
#include "Dialog/KivDlgView.h"
#include "Dialog/KivUserHand.h"
#include "Settings/KivSettingTurn.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace {

// What the editors do not use: each fetches the repository that it edits.
constexpr KivSettingRepository* kNoRepository = nullptr;

int PositionFrom(const KivUnicodeString& text)
{
    int position = 1000; // a tab that says nothing stands at the end
    std::from_chars(text.View().data(), text.View().data() + text.View().size(), position);
    return position;
}

void CollectWindows(const KivDialog& node, std::vector<KivWeakPtr<KivDlgDialog>>& windows)
{
    for (KivDialog* child : node.Children()) {
        if (child->IsAKindOf(KivDlgDialog::Name)) windows.emplace_back(static_cast<KivDlgDialog*>(child));
        CollectWindows(*child, windows);
    }
}

// Whether the user has begun something in this part of the tree that he would lose if it were filled.
bool IsInUse(const KivDialog& node)
{
    if (node.GetView() && node.GetView()->IsTyping()) return true;
    if (node.IsAKindOf(KivDlgDialog::Name)) {
        const auto& window = static_cast<const KivDlgDialog&>(node);
        if (window.IsCondemned()) return false;
        if (window.HoldsChoices()) return true;
    }
    return std::any_of(node.Children().begin(), node.Children().end(),
                       [](const KivDialog* child) { return IsInUse(*child); });
}

} // namespace

KivOptionsSession::KivOptionsSession(KivUserSettingsManager& manager)
    : _root(std::make_unique<KivDlgFrame>(nullptr, "OptionsDialog"))
{
    for (const KivUserSettingsManager::Editor& editor : manager.CreateEditors()) Add(editor);
    std::stable_sort(_pages.begin(), _pages.end(),
                     [](const Page& a, const Page& b) { return a.position < b.position; });
}

KivOptionsSession::~KivOptionsSession()
{
    for (const Page& page : _pages) page.settings->CloseWindowFromEditor();
    _pages.clear();
    KivCommand::DrainDelayedDestruction();
}

void KivOptionsSession::Add(const KivUserSettingsManager::Editor& editor)
{
    auto frame = std::make_unique<KivEditorPage>(_root.get(), editor.name);
    editor.settings->BuildEditor(frame.get());

    // The texts of a tab are those of the library that its editor is part of.
    const KivMetaClass* meta = KivMetaClass::Find(editor.name.ConvertToChar());
    const KivTextCatalogue& texts = KivTextCatalogue::Open(meta->Framework());
    KivUnicodeString title = texts.Find(editor.name + ".Title");
    if (title.IsEmpty()) title = KivUnicodeString(editor.name);
    if (frame->Children().empty()) {
        _emptyTabs.push_back(title);
        return;
    }
    editor.settings->SetUserSettingsValue(kNoRepository);
    _pages.push_back({.editor = editor.name,
                      .title = title,
                      .icon = KivString(texts.Find(editor.name + ".Icon").View()),
                      .help = texts.Find(editor.name + ".Help"),
                      .frame = frame.get(),
                      .settings = editor.settings,
                      .position = PositionFrom(texts.Find(editor.name + ".Position"))});
    static_cast<void>(frame.release()); // the tree owns it from here on
}

const KivOptionsSession::Page* KivOptionsSession::FindPage(const KivUnicodeString& name) const
{
    KivUnicodeString wanted = name;
    wanted.ToLower();
    for (const Page& page : _pages) {
        KivUnicodeString title = page.title, editor = KivUnicodeString(page.editor);
        title.ToLower();
        editor.ToLower();
        if (wanted == title || wanted == editor) return &page;
    }
    return nullptr;
}

bool KivOptionsSession::CloseWindows()
{
    const KivWeakPtr<KivDlgFrame> root(_root.get());
    std::vector<KivWeakPtr<KivDlgDialog>> windows;
    CollectWindows(*_root, windows);
    for (const KivWeakPtr<KivDlgDialog>& window : windows) {
        if (window) KivUserHand::CloseWindow(*window);
    }
    return static_cast<bool>(root);
}

// One operation of every editor, also when somebody who is told of it destroys this session: what the user
// asked for is done as a whole. False then, and when somebody who is told of it asks for it once more.
bool KivOptionsSession::Tell(Operation operation)
{
    if (operation == _underWay) return false;
    const Operation before = std::exchange(_underWay, operation);
    const KivWeakPtr<KivDlgFrame> root(_root.get());
    const std::vector<Page> pages = _pages; // a copy keeps the editors alive
    for (const Page& page : pages) (page.settings.Get()->*operation)(kNoRepository);
    if (!root) return false;
    _underWay = before;
    return true;
}

std::vector<KivDiagnostic> KivOptionsSession::Commit()
{
    if (!CloseWindows()) return {};
    // The editors are silent by contract: what they meet is overheard here.
    std::vector<KivDiagnostic> errors;
    const KivDiagnosticScope scope([&errors](const KivDiagnostic& said) {
        if (said.severity != KivDiagnostic::Severity::Error) return false;
        errors.push_back(said);
        return true;
    });
    const KivSettingTurn turn; // one for all editors: none of them waits again for whom the first has waited
    Tell(&KivIUserSettings::CommitModification);
    return errors;
}

void KivOptionsSession::Cancel()
{
    if (!CloseWindows() || !Tell(&KivIUserSettings::CancelModification)) return;
    for (const Page& page : _pages) Fill(page);
}

void KivOptionsSession::Refill()
{
    for (const Page& page : _pages) Refill(page);
}

void KivOptionsSession::Refill(const Page& page)
{
    if (page.frame && IsInUse(*page.frame)) {
        _waiting.insert(page.editor);
    } else {
        Fill(page);
    }
}

void KivOptionsSession::RefillWaiting()
{
    if (_waiting.empty()) return;
    for (const Page& page : _pages) {
        if (_waiting.contains(page.editor)) Refill(page);
    }
}

void KivOptionsSession::Fill(const Page& page)
{
    _waiting.erase(page.editor);
    page.settings->SetUserSettingsValue(kNoRepository);
}

void KivOptionsSession::Reset(const Page& page)
{
    const KivWeakPtr<KivDlgFrame> root(_root.get());
    const KivVar<KivIUserSettings> settings = page.settings; // keeps the editor alive
    settings->ResetUserSettingsValue();
    if (root) Fill(page);
}
