#include "Pages/KivDrwOptLayoutFrame.h"

#include "Base/KivTextCatalogue.h"

namespace {

constexpr int kPathWidth = 45; // characters

} // namespace

void KivDrwOptLayoutFrame::Build()
{
    BuildViews();
    BuildSheets();
    BuildTitleBlock();
}

void KivDrwOptLayoutFrame::BuildViews()
{
    KivFormGroup shown = Group("frameViewCreation", "I_DrwFrontView");
    shown.Row().At(0, 2).Check("checkViewName", _viewName);
    shown.Row().At(0, 2).Check("checkViewScale", _viewScale);
    shown.Row().At(0, 2).Check("checkViewFrame", _viewFrame);
    shown.Row("labelCalloutSize").Choice("comboCalloutSize", _calloutSize, _calloutSize.Kind(), 0UL);

    KivFormGroup placed = Group("frameViewPosition", "I_DrwViewPosition");
    placed.Row().Check("checkViewOrientation", _viewOrientation);
    placed.Row().Check("checkStrictPositioning", _strictPositioning);
    placed.Row().Check("checkGenPropagation", _genPropagation);
}

void KivDrwOptLayoutFrame::BuildSheets()
{
    KivFormGroup sheet = Group("frameNewSheet", "I_DrwNewSheet");
    sheet.Row().Check("checkBackgroundToCopy", _backgroundViewToCopy);
    KivDrwLockDialog* sources = sheet.Radios("frameSheetSource", _sourceSheetType, _sourceSheetType.Kind());
    _rules.AvailableWhile([this] { return _backgroundViewToCopy.cached; }, {sources});
}

void KivDrwOptLayoutFrame::BuildTitleBlock()
{
    KivFormGroup titleBlock = Group("frameTitleBlock", "I_DrwTitleBlock");
    _titleBlockField =
        titleBlock.Row("labelTitleBlockPath")
            .Text("editorTitleBlockPath", _titleBlockPath, kPathWidth, [this] { MarkDirectory(); });
    _missingLabel = titleBlock.Row().At(1).Label("labelTitleBlockMissing");
    KivDlgEditor* field = _titleBlockField ? _titleBlockField->GetEditor() : nullptr;
    if (!field) return;
    field->SetIsDirectory(true);
    AddAnalyseNotificationCB(field, field->GetDirectoryNotification(),
                             &KivDrwOptLayoutFrame::DirectoryAnswered, nullptr);
}

void KivDrwOptLayoutFrame::UpdateWidgets()
{
    KivDrwKeyPageFrame::UpdateWidgets();
    MarkDirectory();
}

void KivDrwOptLayoutFrame::DirectoryAnswered(KivCommand*, KivNotification*, void*)
{
    MarkDirectory();
}

// A directory may be away for a while, and a site's value may be meant for other machines: such a path is
// kept, and said to lead nowhere.
void KivDrwOptLayoutFrame::MarkDirectory()
{
    if (!_missingLabel || !_titleBlockField || !_titleBlockField->GetEditor()) return;
    KivDlgEditor& field = *_titleBlockField->GetEditor();
    const KivDirectoryState state = field.GetDirectoryState();
    const bool isThere = state == KivDirectoryState::There;
    _missingLabel->SetTitle(KivTextCatalogue::Open(Name).Text(
        state == KivDirectoryState::Missing ? "TitleBlockMissing" : "TitleBlockUnknown"));
    _missingLabel->SetVisibility(isThere ? KivDlgHidden : KivDlgShown);
    // Who hears the page is told at the field.
    field.SetHelp(isThere ? field.CatalogueText("Help") : _missingLabel->GetTitle());
}
