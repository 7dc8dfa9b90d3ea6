#include "Options/OptionsWindow.h"

#include "Common/Announcement.h"
#include "Common/IconStore.h"
#include "Common/NativeText.h"
#include "Common/WindowPlace.h"
#include "Disk/KivDirectoryWatch.h"
#include "Native/NativePanel.h"
#include "Native/NativePiece.h"
#include "Options/OptionsPageView.h"
#include "Options/OptionsStrips.h"
#include "Options/OptionsSubWindows.h"
#include "Settings/KivSettingRepository.h"
#include "Settings/KivSettingTurn.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>

#include <algorithm>

namespace {

constexpr int kLettersWide = 148; // the pages in two columns
constexpr int kLinesHigh = 34;
constexpr int kLookAgain = 200;                 // milliseconds
constexpr int kSeen = 100;                      // until a window that was shown has been painted
constexpr std::chrono::milliseconds kFrame{15}; // nobody sees a window halt that long

} // namespace

OptionsWindow::OptionsWindow(std::unique_ptr<KivOptionsSession> session, OptionsMemory memory,
                             QWidget* parent)
    : QDialog(parent), _session(std::move(session)), _memory(std::move(memory)), _list(new QListWidget(this)),
      _stack(new QStackedWidget(this)), _messages(new OptionsMessageStrip(this)),
      _diagnostics([this](const KivDiagnostic& diagnostic) {
          // A note (an icon that nobody has drawn) is nothing that a user can mend.
          if (diagnostic.severity != KivDiagnostic::Severity::Note)
              _messages->Add(ToQt(diagnostic.Message()));
          return false;
      }),
      _windows(std::make_unique<OptionsSubWindows>(_session->Root(), _memory, *this))
{
    setSizeGripEnabled(true);
    _list->setAccessibleName(WindowText("Pages"));
    _list->setAccessibleDescription(WindowText("PagesHelp"));
    _list->setWhatsThis(WindowText("PagesHelp"));
    _list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* left = new QVBoxLayout;
    left->addWidget(_list, 1);
    auto* middle = new QHBoxLayout;
    middle->addLayout(left);
    middle->addWidget(_stack, 1);
    auto* all = new QVBoxLayout(this);
    const QString layer = ToQt(KivSettingRepository::EditedLayer());
    setWindowTitle(layer.isEmpty() ? WindowText("OptionsTitle") : WindowText("OptionsTitleLayer").arg(layer));
    if (!layer.isEmpty()) all->addWidget(_layer = new OptionsLayerStrip(layer, this));
    all->addLayout(middle, 1);
    all->addWidget(_messages);
    all->addLayout(MakeButtons());

    AddPages();
    ListenToKeys();
    // What pages asked to be destroyed goes when the events are done.
    auto* events = QAbstractEventDispatcher::instance();
    connect(events, &QAbstractEventDispatcher::aboutToBlock, this, [this] { TidyUp(); });
    connect(events, &QAbstractEventDispatcher::awake, this, [this] { TidyUp(); });
    _awaited.setSingleShot(true);
    _awaited.setInterval(kLookAgain);
    _ahead.setSingleShot(true);
    connect(&_ahead, &QTimer::timeout, this, [this] { BuildAhead(); });
    _turnAwaited.setInterval(kFrame);
    connect(&_turnAwaited, &QTimer::timeout, this, [this] { LookForTurn(); });

    if (!KivSettingRepository::Damaged().empty()) {
        _messages->Offer(WindowText("Damaged"), WindowText("DropDamaged"), WindowText("DropDamagedHelp"),
                         [this] { Mend(); });
    }
    if (!ShowPage(KivUnicodeString(_memory.Page()))) _list->setCurrentRow(0);
    BringForward(_list->currentRow()); // the session has just filled it
    connect(_list, &QListWidget::currentRowChanged, this, [this](int row) { PageChosen(row); });
    TakePlace();
    WindowPlace::KeepOnScreen(*this);
}

OptionsWindow::~OptionsWindow()
{
    if (_session) _session->Cancel();
}

void OptionsWindow::AddPages()
{
    for (const KivOptionsSession::Page& page : _session->Pages()) {
        auto* item = new QListWidgetItem(IconStore::Shared().Icon(page.icon), ToQt(page.title), _list);
        item->setToolTip(ToQt(page.help));
        _stack->addWidget(new OptionsPageView(page.frame.Get(), _stack));
    }
    const int bar = _list->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, _list);
    _list->setFixedWidth(_list->sizeHintForColumn(0) + bar + 2 * _list->frameWidth());
}

// A box for buttons would take part in the ring of Tab itself, and lead it back to the first of them.
QLayout* OptionsWindow::MakeButtons()
{
    const auto button = [this](const char* text, void (OptionsWindow::*action)()) {
        auto* const made = new QPushButton(WindowText(text), this);
        connect(made, &QPushButton::clicked, this, action);
        return made;
    };
    _reset = button(_layer ? "RemoveFromLayer" : "Reset", &OptionsWindow::Reset);
    _ok = button("OK", &OptionsWindow::accept);
    _cancel = button("Cancel", &OptionsWindow::reject);
    _ok->setDefault(true);
    auto* const row = new QHBoxLayout;
    row->addWidget(_reset);
    row->addStretch(1);
    row->addWidget(_ok);
    row->addWidget(_cancel);
    return row;
}

void OptionsWindow::ListenToKeys()
{
    const auto onKey = [this](QKeySequence key, int pages) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, pages] { Go(pages); });
    };
    onKey(Qt::CTRL | Qt::Key_PageUp, -1);
    onKey(Qt::CTRL | Qt::Key_PageDown, 1);
    onKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
    onKey(Qt::CTRL | Qt::Key_Tab, 1);
}

void OptionsWindow::Go(int pages)
{
    const int page = _list->currentRow() + pages;
    if (page >= 0 && page < _list->count()) _list->setCurrentRow(page);
}

bool OptionsWindow::ShowPage(const KivUnicodeString& name)
{
    const KivOptionsSession::Page* page = _session ? _session->FindPage(name) : nullptr;
    if (page) _list->setCurrentRow(static_cast<int>(page - _session->Pages().data()));
    return page;
}

int OptionsWindow::PageCount() const
{
    return _stack->count();
}

int OptionsWindow::CurrentPage() const
{
    return _stack->currentIndex();
}

OptionsPageView& OptionsWindow::PageView(int page) const
{
    return *static_cast<OptionsPageView*>(_stack->widget(page));
}

void OptionsWindow::PageChosen(int page)
{
    if (page < 0 || !_session) return;
    _session->Refill(_session->Pages()[static_cast<std::size_t>(page)]);
    BringForward(page);
    // The list says itself where it is.
    if (!_list->hasFocus()) Announcement::Say(*this, PageView(page).accessibleName());
}

void OptionsWindow::BringForward(int page)
{
    if (page < 0 || !_session) return;
    PageView(page).Build();
    _stack->setCurrentIndex(page);
    const QString title = ToQt(_session->Pages()[static_cast<std::size_t>(page)].title);
    PageView(page).setAccessibleName(title);
    _reset->setToolTip(WindowText(_layer ? "RemoveFromLayerHelp" : "ResetHelp").arg(title));
    _reset->setAccessibleDescription(_reset->toolTip());
    ButtonsLast();
}

// Pages are built late: without this their fields would come after the buttons.
void OptionsWindow::ButtonsLast()
{
    QWidget* const last = previousInFocusChain();
    if (last == _cancel) return;
    const Qt::FocusPolicy policy = last->focusPolicy();
    last->setFocusPolicy(Qt::StrongFocus); // what cannot have the focus would be passed over
    setTabOrder(last, _reset);
    last->setFocusPolicy(policy);
    setTabOrder(_reset, _ok);
    setTabOrder(_ok, _cancel);
}

// The other pages, once this one is seen: in pieces, so that nobody waits for them. Then the largest is
// known.
void OptionsWindow::BuildAhead()
{
    for (int page = 0; page < PageCount(); ++page) {
        if (!PageView(page).BuildPart()) continue;
        _ahead.start(0);
        return;
    }
    ButtonsLast();
    const bool isAsGiven = size() == WindowPlace::OnScreen(*this, QRect(pos(), _given)).size();
    if (_given.isValid() && isAsGiven) TakePlace();
}

// Enters the texts that wait, here and in the windows of the pages; a refused one keeps all of them open, and
// the user is led to the first. False too when somebody who was told of it has ended the options.
bool OptionsWindow::CommitFields()
{
    const QPointer<QWidget> self(this);
    QPointer<QWidget> refused = NativeField::CommitAll(*_stack);
    if (!self || !_windows) return false;
    QWidget* const refusedInWindow = _windows->CommitFields();
    if (!self || !_session) return false;
    if (!refused) refused = refusedInWindow;
    if (refused) GoTo(*refused);
    return !refused;
}

// The field says why itself.
void OptionsWindow::GoTo(QWidget& refused)
{
    for (int page = 0; page < PageCount(); ++page)
        if (PageView(page).isAncestorOf(&refused)) _list->setCurrentRow(page);
    refused.window()->raise();
    refused.activateWindow();
    refused.setFocus();
}

void OptionsWindow::Refill()
{
    if (_session) _session->Refill();
}

// Pages hear what has come of the directories that they asked for; while an answer is awaited, the end of the
// timer is an event.
void OptionsWindow::TidyUp()
{
    KivCommand::DrainDelayedDestruction();
    if (KivDirectoryWatch::Drain() && !_awaited.isActive()) _awaited.start();
    if (_session) _session->RefillWaiting();
}

void OptionsWindow::accept()
{
    _turnAwaited.stop();
    std::unique_ptr<KivSettingTurn> turn = std::move(_turn); // given back on every way out but one
    if (!_session || !CommitFields()) return;
    if (!turn) {
        _messages->Clear();
        if (!_session->CloseWindows()) return;
        turn = std::make_unique<KivSettingTurn>();
        if (!turn->HasCome(kFrame)) _messages->Add(WindowText("SaveAwaited"));
    }
    if (!turn->HasCome(kFrame)) {
        _turn = std::move(turn);
        _turnAwaited.start();
        return;
    }
    _messages->Clear();
    const QPointer<QWidget> self(this); // who is told of the commit may destroy it
    const std::vector<KivDiagnostic> errors = _session->Commit();
    if (!self) return;
    if (errors.empty()) {
        done(Accepted);
        return;
    }
    _messages->Add(WindowText("NotSaved"));
    for (const KivDiagnostic& error : errors) _messages->Add(ToQt(error.Message()));
}

void OptionsWindow::LookForTurn()
{
    if (_turn && _turn->HasCome(kFrame)) accept();
}

void OptionsWindow::reject()
{
    const QPointer<QWidget> self(this); // as above
    if (_session) _session->Cancel();
    if (self) done(Rejected);
}

void OptionsWindow::done(int result)
{
    if (!_session) return;
    _ahead.stop();
    _turnAwaited.stop();
    _turn.reset();
    _memory.Remember(geometry(), _session->Pages().empty()
                                     ? KivString()
                                     : _session->Pages()[static_cast<std::size_t>(CurrentPage())].editor);
    hide();
    // Hidden first: nobody has to watch how the pages are taken apart.
    _windows.reset();
    _session.reset();
    QDialog::done(result);
}

void OptionsWindow::Reset()
{
    if (!_session || CurrentPage() < 0) return;
    NativeField::DropAll(PageView(CurrentPage()));
    _session->Reset(_session->Pages()[static_cast<std::size_t>(CurrentPage())]);
}

void OptionsWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::HelpContents)) {
        NativePanel::OpenLongHelp(*this);
    } else {
        QDialog::keyPressEvent(event);
    }
}

void OptionsWindow::showEvent(QShowEvent* event)
{
    _ahead.start(kSeen);
    QDialog::showEvent(event);
}

void OptionsWindow::Mend()
{
    _messages->Clear();
    // What else was a note tells here where the file as it was has gone.
    const KivDiagnosticScope scope([this](const KivDiagnostic& said) {
        _messages->Add(ToQt(said.Message()));
        return true;
    });
    for (KivSettingRepository* repository : KivSettingRepository::Damaged()) repository->Mend();
}

void OptionsWindow::TakePlace()
{
    const QRect remembered = _memory.Place();
    QRect place(pos(), sizeHint());
    if (_sheet) place = WindowPlace::Beside(*this, place.size(), *_sheet);
    place = WindowPlace::OnScreen(*this, remembered.isValid() ? remembered : place);
    _given = remembered.isValid() ? QSize() : place.size();
    // Without a position its desktop finds one when it is shown.
    remembered.isValid() || _sheet || isVisible() ? setGeometry(place) : resize(place.size());
}

void OptionsWindow::StandBeside(const QWidget& sheet)
{
    _sheet = &sheet;
    TakePlace();
}

// As large as the largest page needs, as far as they are built.
QSize OptionsWindow::sizeHint() const
{
    const QFontMetrics metrics(font());
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const QMargins margins = layout()->contentsMargins();
    const int beside = _list->width() + bar + 2 * (margins.left() + margins.right());
    const int above = _layer ? _layer->sizeHint().height() : 0;
    const int below = _ok->sizeHint().height() + 2 * (margins.top() + margins.bottom());
    QSize hint(kLettersWide * metrics.averageCharWidth(), kLinesHigh * metrics.lineSpacing());
    for (int page = 0; page < PageCount(); ++page) {
        if (const QWidget* surface = PageView(page).widget())
            hint = hint.expandedTo(surface->sizeHint() + QSize(beside, above + below));
    }
    return hint;
}
