#include "TestEditors.h"

#include "Component/KivExtensionAdapter.h"

namespace {

class ITestEditorFactory : public KivClass<ITestEditorFactory, KivEditorFactory> {
public:
    static constexpr const char* Name = "ITestEditorFactory";
    static constexpr KivClassKind Kind = KivClassKind::Interface;

    template <class Implementation> class Forwarder : public KivTie<ITestEditorFactory, Implementation> {
    public:
        using KivTie<ITestEditorFactory, Implementation>::KivTie;
        unsigned char Support(const KivUnicodeString& name) const override
        {
            return this->Impl() ? this->Impl()->Support(name) : 0;
        }
        KivBaseUnknown* Create(const KivUnicodeString& name) const override
        {
            return this->Impl() ? this->Impl()->Create(name) : nullptr;
        }
    };
};

// The name of the editor that was asked about last is that of the one to make.
class TestEditorFactory : public KivClass<TestEditorFactory, KivExtensionAdapter> {
public:
    static constexpr const char* Name = "TestEditorFactory";
    unsigned char Support(const KivUnicodeString& name) const
    {
        other = name == OtherTestEditor::Name;
        return other || name == TestEditor::Name;
    }
    KivBaseUnknown* Create(const KivUnicodeString& interface) const
    {
        TestEditor* const editor = other ? new OtherTestEditor : new TestEditor;
        KivBaseUnknown* const made = editor->QueryInterface(interface.ConvertToChar());
        editor->Release();
        return made;
    }
    static inline bool other = false;
};

KIV_IMPLEMENT_TIE(TIETestEditor, CreateTIETestEditor, KivIUserSettings, TestEditor)
KIV_IMPLEMENT_TIE(TIEOtherTestEditor, CreateTIEOtherTestEditor, KivIUserSettings, OtherTestEditor)
KIV_IMPLEMENT_TIE(TIETestEditorFactory, CreateTIETestEditorFactory, ITestEditorFactory, TestEditorFactory)

} // namespace

void TestEditor::SetUserSettingsValue(KivSettingRepository*)
{
    if (page) tree->horizontal->SetValue(stored, 0);
}

void TestEditor::CommitModification(KivSettingRepository*)
{
    log.push_back("commit");
    if (failing) KivReport({.severity = KivDiagnostic::Severity::Error, .text = "the disk is full"});
}

std::unique_ptr<KivOptionsSession> OpenTestSession()
{
    TestEditorFactory::MetaObject()->DeclareExtensionOf(KivUserSettingsManager::MetaObject());
    auto* const manager = new KivUserSettingsManager;
    auto session = std::make_unique<KivOptionsSession>(*manager);
    manager->Release();
    return session;
}
