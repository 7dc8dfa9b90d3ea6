#pragma once

#include "Base/KivDiagnosticScope.h"
#include "Common/OptionsMemory.h"
#include "Options/KivOptionsSession.h"

#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <memory>

class OptionsLayerStrip;
class OptionsMessageStrip;
class OptionsPageView;
class OptionsSubWindows;
class KivSettingTurn;
class QListWidget;
class QPushButton;
class QStackedWidget;

// The options dialog: a list of pages, the page that was chosen, and OK, Cancel and Reset. It ends the
// session that it shows: OK commits it, any other way of closing cancels it; then the session is destroyed
// and QDialog::finished is sent.
class OptionsWindow : public QDialog {
public:
    OptionsWindow(std::unique_ptr<KivOptionsSession> session, OptionsMemory memory,
                  QWidget* parent = nullptr);
    ~OptionsWindow() override;

    // Null after the end.
    KivOptionsSession* Session() const { return _session.get(); }
    // Shows the page of that name (see KivOptionsSession::FindPage). False when there is none.
    bool ShowPage(const KivUnicodeString& name);
    int PageCount() const;
    int CurrentPage() const;
    OptionsPageView& PageView(int page) const;
    OptionsMessageStrip& Messages() const { return *_messages; }

    // Shows what is in force after it was changed from elsewhere (see KivOptionsSession::Refill).
    void Refill();

    // OK. The window stays open when a field holds a refused text or something could not be saved, and as
    // long as another program is saving: it says so, everything else goes on, and OK is done afterwards.
    void accept() override;
    void reject() override;
    // It opens beside that, unless it remembers where it stood the last time.
    void StandBeside(const QWidget& sheet);
    void done(int result) override;
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddPages();
    QLayout* MakeButtons();
    void ListenToKeys();
    void Go(int pages);
    void PageChosen(int page);
    void BringForward(int page);
    void ButtonsLast();
    void BuildAhead();
    bool CommitFields();
    void GoTo(QWidget& refused);
    void Reset();
    void Mend();
    void TidyUp();
    void LookForTurn();
    void TakePlace();

    std::unique_ptr<KivOptionsSession> _session;
    OptionsMemory _memory;
    QPointer<const QWidget> _sheet; // beside which it stands, or null
    QSize _given;                   // the size that it chose for itself; invalid when it is remembered
    QListWidget* _list;
    QStackedWidget* _stack;
    OptionsLayerStrip* _layer = nullptr; // null for a user
    OptionsMessageStrip* _messages;
    QPushButton* _ok = nullptr;
    QPushButton* _cancel = nullptr;
    QPushButton* _reset = nullptr;
    KivDiagnosticScope _diagnostics;
    std::unique_ptr<OptionsSubWindows> _windows; // null after the end
    std::unique_ptr<KivSettingTurn> _turn;       // while OK waits for it
    QTimer _turnAwaited;
    QTimer _ahead;   // runs while pages are still to be built
    QTimer _awaited; // runs while a directory that a page shows has still to answer
};
