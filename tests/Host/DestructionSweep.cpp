#include "Command/KivCommandHeader.h"
#include "OptionsPages.h"
#include "PageTables.h"
#include "Workbench/KivSketcherSettings.h"

#include <dlfcn.h>

namespace {

// What is destroyed in the middle of a notification. Who is told otherwise stands beside the tree: he
// destroys it in large pieces only.
enum class Victim { Control, Row, Frame, Page, Dialog, Editor };

// One visit of every page and window, again and again: each time that somebody is told of something in it
// (by a notification, by the repository, the sketcher or a command's header) something is destroyed, and the
// user goes on with what is left.
class DestructionSweep : public OptionsPages, public testing::WithParamInterface<Victim> {
protected:
    void TearDown() override
    {
        KivCommand::SetDeliveryProbe({});
        OptionsPages::TearDown();
    }
    // Runs the visit and answers how many deliveries it met; destroys at the given one.
    int Visit(int fatal)
    {
        _deliveries = 0;
        _fatal = fatal;
        KivCommand::SetDeliveryProbe([this](KivCommand& from) {
            if (++_deliveries == _fatal) DestroyAround(static_cast<KivDialog&>(from));
        });
        OpenOn("int DrwPreventGVS = 0\nint DrwGenerationForBox = 1\n");
        Listen();
        for (const PageTable& table : PageTables()) VisitPage(table);
        if (session) session->Refill();
        KivCommand::DrainDelayedDestruction();
        if (KivDialog* ruler = Left("checkRuler_dialog")) Drive(*ruler); // what a commit tells of
        if (session) session->Commit();
        session.reset();
        manager.reset();
        KivCommand::DrainDelayedDestruction();
        KivCommand::SetDeliveryProbe({});
        Leave();
        return _deliveries;
    }

private:
    // The library's. This program is not linked with it, and no component leads there.
    static KivSketcherSettings& Sketcher()
    {
        void* const get = dlsym(RTLD_DEFAULT, "_ZN22KivDrwSketcherSettings19GetSketcherSettingsEv");
        return *reinterpret_cast<KivSketcherSettings* (*)()>(get)();
    }
    void Listen()
    {
        _listener = Repository().AddListener([this](const auto&) { Meet(); });
        using Of = KivSketcherSettings;
        for (KivCallbackEvent event : {Of::GridModification(), Of::SnapModification(), Of::CpltModification(),
                                       Of::GeomUIModification(), Of::Visu3DUIModification()})
            _callbacks.push_back(Sketcher().AddCallback(event, [this](auto...) { Meet(); }));
        for (KivCommandHeader* header : Headers()) {
            header->BecomeUnavailable(); // a commit finds that nothing prevents them
            header->SetView([this, name = header->GetName()](bool) {
                Meet();
                EXPECT_EQ(KivCommandHeader::GetHeaderFromList(name, 0)->GetName(), name);
            });
        }
    }
    void Leave()
    {
        Repository().RemoveListener(_listener);
        for (const KivCallbackId callback : _callbacks) Sketcher().RemoveCallback(callback);
        _callbacks.clear();
        for (KivCommandHeader* header : Headers()) header->SetView({});
    }
    static std::vector<KivCommandHeader*> Headers()
    {
        std::vector<KivCommandHeader*> headers;
        for (const char* name : {"DrwStyle", "DrwSetAsDefault", "DrwResetDefaults", "KivDrwEditFrame"})
            headers.push_back(KivCommandHeader::Declare(name));
        return headers;
    }
    // Somebody is told who stands beside the tree. He takes himself away as well.
    void Meet()
    {
        const bool isLarge = GetParam() >= Victim::Frame;
        if (!isLarge || ++_deliveries != _fatal) return;
        Leave();
        if (GetParam() == Victim::Dialog) return session.reset();
        const std::vector<KivOptionsSession::Page> pages = session->Pages();
        for (const KivOptionsSession::Page& page : pages) DestroyAround(*page.frame->Children().front());
    }

    KivDialog* Left(const std::string& name) { return session ? Find(name) : nullptr; }
    void PressLeft(const std::string& name)
    {
        if (KivDialog* button = Left(name)) KivUserHand::Press(*static_cast<KivDlgPushButton*>(button));
    }
    void DriveLeft(const std::vector<TableRow>& rows)
    {
        for (const TableRow& row : rows) {
            KivDialog* control = Left(row.control + "_dialog");
            if (!control) control = Left(row.control);
            // A row whose control was destroyed.
            if (control && control->IsAKindOf(KivDlgControl::Name)) Drive(*control);
            KivCommand::DrainDelayedDestruction();
        }
    }
    void VisitPage(const PageTable& table)
    {
        for (const std::string& button : table.buttons) PressLeft(button);
        DriveLeft(table.rows);
        for (const WindowTable& window : table.windows) VisitWindow(window);
        const KivOptionsSession::Page* page = session ? session->FindPage(table.page.c_str()) : nullptr;
        if (page) session->Reset(*page);
        if (session && table.page == "View") session->Cancel();
    }
    void VisitWindow(const WindowTable& window)
    {
        // The mode that the window needs; all but the pictures' are opened in the exact one.
        const bool hrv = window.catalogue == "KivDrwButtonHRVView";
        const int line = window.button != "pushRasterOptions" ? 0 : hrv ? 2 : 3;
        if (KivDialog* combo = Left("combViewMod_dialog"))
            KivUserHand::Choose(*static_cast<KivDlgCombo*>(combo), line);
        for (int time = 0; time < 2; ++time) PressLeft(window.button);
        DriveLeft(window.rows);
        if (KivDialog* open = Left(window.name)) KivUserHand::Close(*static_cast<KivDlgDialog*>(open));
        KivCommand::DrainDelayedDestruction();
    }

    void DestroyAround(KivDialog& node)
    {
        const auto ancestor = [&](const char* kind) {
            KivDialog* found = &node;
            while (found && !found->IsAKindOf(kind)) found = found->GetParentDialog();
            return found;
        };
        KivDialog* const page = ancestor("KivEditorPage");
        switch (GetParam()) {
        case Victim::Control:
            delete &node;
            break;
        case Victim::Row:
            delete node.GetParentDialog();
            break;
        case Victim::Frame: {
            KivDialog* const window = ancestor(KivDlgDialog::Name);
            delete (window ? window : page->Children().front());
            break;
        }
        case Victim::Page:
            delete page;
            break;
        case Victim::Dialog:
            session.reset();
            break;
        case Victim::Editor:
            for (const KivOptionsSession::Page& one : session->Pages()) {
                if (one.frame.Get() == page) delete one.settings->GetImpl();
            }
            break;
        }
    }

    int _deliveries = 0;
    int _fatal = 0;
    KivSettingRepository::ListenerId _listener = 0;
    std::vector<KivCallbackId> _callbacks;
};

TEST_P(DestructionSweep, NobodyTouchesWhatIsGone)
{
    const long before = KivBaseUnknown::LiveObjects();
    const int all = Visit(0);
    EXPECT_EQ(KivBaseUnknown::LiveObjects(), before);
    EXPECT_GT(all, 100);
    for (int fatal = 1; fatal <= all; ++fatal) {
        Visit(fatal);
        ASSERT_EQ(KivBaseUnknown::LiveObjects(), before) << "at notification " << fatal;
    }
}

std::string NameOf(const testing::TestParamInfo<Victim>& victim)
{
    constexpr const char* kNames[] = {"Control", "Row", "Frame", "Page", "Dialog", "Editor"};
    return kNames[static_cast<int>(victim.param)];
}

INSTANTIATE_TEST_SUITE_P(Victims, DestructionSweep,
                         testing::Values(Victim::Control, Victim::Row, Victim::Frame, Victim::Page,
                                         Victim::Dialog, Victim::Editor),
                         NameOf);

} // namespace
