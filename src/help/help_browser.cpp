#include "help/help_browser.h"

#include <QDesktopServices>
#include <QEvent>
#include <QScreen>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

#include "help/hit_delegate.h"
#include "help/manual.h"
#include "language/language.h"
#include "ui/form_texts.h"
#include "ui/icons.h"

namespace rqm5 {
namespace {

constexpr QSize kUsualSize(900, 640);
constexpr int kListWidth = 240;
constexpr QSize kWindowFrame(20, 60);  ///< more than title bar and borders take

/// A single letter stands nearly everywhere; an ideograph is a word.
bool IsWord(const QString& text)
{
    return text.size() > 1 || (text.size() == 1 && text[0].script() == QChar::Script_Han);
}

}  // namespace

frmHelp::frmHelp(Dialogs& dialogs, QWidget* parent)
    : QMainWindow(parent, Qt::Window),
      dialogs_(dialogs),
      brwPage_(new PageView(this)),
      txtSearch_(new QLineEdit(this)),
      lstPages_(new QListWidget(this))
{
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(Designed(QT_TR_NOOP("Manual")));
    setWindowIcon(ProgramIcon());
    Compose();
    AddTools();
    connect(txtSearch_, &QLineEdit::textChanged, this, &frmHelp::txtSearch_Change);
    connect(txtSearch_, &QLineEdit::returnPressed, this, &frmHelp::txtSearch_Enter);
    connect(lstPages_, &QListWidget::itemClicked, this, &frmHelp::OpenItem);
    connect(lstPages_, &QListWidget::itemActivated, this, &frmHelp::OpenItem);
    connect(brwPage_, &QTextBrowser::historyChanged, this, &frmHelp::SelectCurrentPage);
    connect(brwPage_, &PageView::ExternalLinkClicked, this, &frmHelp::AskToOpen);
    FillContents();
    SetFormTexts(*this);
    const QSize wanted = kUsualSize.expandedTo(QSize(fontMetrics().averageCharWidth() * 110, 0));
    resize(wanted.boundedTo(screen()->availableSize() - kWindowFrame));
}

void frmHelp::Compose()
{
    brwPage_->setObjectName(QStringLiteral("brwPage"));
    brwPage_->setAccessibleName(Designed(QT_TR_NOOP("Page of the manual")));
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setPlaceholderText(Designed(QT_TR_NOOP("Search the manual")));
    txtSearch_->setAccessibleName(Designed(QT_TR_NOOP("Search the manual")));
    txtSearch_->setToolTip(
        Designed(QT_TR_NOOP("Lists the pages that hold every word; Enter goes to the next place")));
    txtSearch_->setClearButtonEnabled(true);
    lstPages_->setObjectName(QStringLiteral("lstPages"));
    lstPages_->setAccessibleName(Designed(QT_TR_NOOP("Pages")));
    lstPages_->setItemDelegate(new HitDelegate(lstPages_));
    lstPages_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* left = new QWidget(this);
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(txtSearch_);
    column->addWidget(lstPages_);

    auto* splitter = new QSplitter(this);
    splitter->addWidget(left);
    splitter->addWidget(brwPage_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kListWidth, kUsualSize.width() - kListWidth});
    setCentralWidget(splitter);
}

QAction* frmHelp::AddTool(const char* name, const QString& text, const QString& icon,
                          const QList<QKeySequence>& keys, std::function<void()> command)
{
    auto* action = new QAction(QIcon::fromTheme(icon), text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    const auto showTip = [action] {
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(key.isEmpty() ? action->text()
                                         : QStringLiteral("%1 (%2)").arg(action->text(), key));
    };
    showTip();
    connect(action, &QAction::changed, this, showTip);
    connect(&Language::OfProgram(), &Language::Changed, this, showTip);  // keys have names, too
    connect(action, &QAction::triggered, this, std::move(command));
    addAction(action);
    return action;
}

void frmHelp::AddTools()
{
    QToolBar* tools = addToolBar(Designed(QT_TR_NOOP("Manual")));
    tools->setObjectName(QStringLiteral("tbHelp"));
    tools->setMovable(false);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    tools->setToolButtonStyle(Qt::ToolButtonTextOnly);

    QAction* back = AddTool("mnuBack", Designed(QT_TR_NOOP("Back")), QStringLiteral("go-previous"),
                            {QKeySequence::Back}, [this] { brwPage_->backward(); });
    QAction* forward = AddTool("mnuForward", Designed(QT_TR_NOOP("Forward")), QStringLiteral("go-next"),
                               {QKeySequence::Forward}, [this] { brwPage_->forward(); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(brwPage_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(brwPage_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    tools->addActions({back, forward});
    tools->addAction(AddTool("mnuContents", Designed(QT_TR_NOOP("Contents")), QStringLiteral("go-home"),
                             {QKeySequence(Qt::ALT | Qt::Key_Home)},
                             [this] { brwPage_->ShowTopic(QStringLiteral("index.md")); }));
    tools->addSeparator();
    // Ctrl+= is the plus key without Shift on many keyboards.
    tools->addAction(AddTool("mnuLarger", Designed(QT_TR_NOOP("Larger Text")), QStringLiteral("zoom-in"),
                             {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
                             [this] { brwPage_->SetTextSize(brwPage_->TextSize() + 1); }));
    tools->addAction(AddTool("mnuSmaller", Designed(QT_TR_NOOP("Smaller Text")), QStringLiteral("zoom-out"),
                             {QKeySequence(Qt::CTRL | Qt::Key_Minus)},
                             [this] { brwPage_->SetTextSize(brwPage_->TextSize() - 1); }));
    AddTool("mnuUsualSize", Designed(QT_TR_NOOP("Usual Text Size")), QStringLiteral("zoom-original"),
            {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { brwPage_->SetTextSize(0); });
    AddTool("mnuSearch", Designed(QT_TR_NOOP("Search")), QStringLiteral("edit-find"), {QKeySequence::Find},
            [this] {
                txtSearch_->setFocus();
                txtSearch_->selectAll();
            });
    AddTool("mnuClose", Designed(QT_TR_NOOP("Close")), QStringLiteral("window-close"),
            {QKeySequence(Qt::Key_Escape)}, [this] { LeaveOrClose(); });
}

void frmHelp::FillContents()
{
    const QString query = txtSearch_->text();
    const bool isSearch = !QueryWords(query).isEmpty();
    lstPages_->clear();
    for (const ManualPage& page : isSearch ? SearchManual(query) : ManualPages()) {
        const QString line = isSearch ? QLatin1Char('\n') + LineAround(page, QueryWords(query)) : QString();
        auto* item = new QListWidgetItem(page.title + line, lstPages_);
        item->setData(Qt::UserRole, page.file);
    }
    if (lstPages_->count() == 0) {
        auto* nothing = new QListWidgetItem(tr("No page holds these words."), lstPages_);
        nothing->setFlags(Qt::NoItemFlags);
    }
    SelectCurrentPage();
}

void frmHelp::SelectCurrentPage()
{
    for (int i = 0; i < lstPages_->count(); ++i) {
        if (lstPages_->item(i)->data(Qt::UserRole).toString() == brwPage_->Page()) {
            lstPages_->setCurrentRow(i);
            return;
        }
    }
    lstPages_->setCurrentItem(nullptr);
    lstPages_->clearSelection();
}

void frmHelp::OpenItem(const QListWidgetItem* item)
{
    const QString page = item->data(Qt::UserRole).toString();
    if (page.isEmpty() || page == brwPage_->Page())
        return;
    brwPage_->ShowTopic(page);
    FindWord();
}

void frmHelp::txtSearch_Change()
{
    FillContents();
    const bool isWord = IsWord(txtSearch_->text().trimmed());
    brwPage_->MarkWords(isWord ? QueryWords(txtSearch_->text()) : QStringList());
    if (isWord)
        OpenFirst();
    if (txtSearch_->text().isEmpty())
        searchPage_.clear();
}

/// Shows the first page found while its words are typed; Back leads to the page from before the search.
void frmHelp::OpenFirst()
{
    const QString first = lstPages_->item(0)->data(Qt::UserRole).toString();
    if (first.isEmpty())
        return;
    if (first == brwPage_->Page()) {
        // The place found so far may go on with the letter that was typed now.
        QTextCursor place = brwPage_->textCursor();
        place.setPosition(place.selectionStart());
        brwPage_->setTextCursor(place);
        return FindWord();
    }
    if (brwPage_->Page() == searchPage_)
        brwPage_->backward();
    OpenItem(lstPages_->item(0));
    searchPage_ = brwPage_->Page();
}

void frmHelp::LeaveOrClose()
{
    if (txtSearch_->hasFocus() && !txtSearch_->text().isEmpty())
        txtSearch_->clear();
    else
        close();
}

void frmHelp::txtSearch_Enter()
{
    const QListWidgetItem* first = lstPages_->item(0);
    if (first->flags() == Qt::NoItemFlags || txtSearch_->text().isEmpty())
        return;
    if (lstPages_->currentItem() == nullptr)
        OpenItem(first);
    else
        FindWord();
}

/// Goes on to the next place where the first word of the search stands, and round to the beginning.
void frmHelp::FindWord()
{
    const QStringList words = QueryWords(txtSearch_->text());
    if (words.isEmpty() || brwPage_->find(words.first()))
        return;
    brwPage_->moveCursor(QTextCursor::Start);
    brwPage_->find(words.first());
}

void frmHelp::AskToOpen(const QUrl& link)
{
    Prompt prompt;
    prompt.title = tr("Open Link");
    prompt.text = tr("This link leads out of the manual. Open it in the web browser?");
    prompt.details = link.toDisplayString();
    prompt.icon = QMessageBox::Question;
    prompt.buttons = QMessageBox::Yes | QMessageBox::No;
    prompt.defaultButton = QMessageBox::No;
    if (dialogs_.Ask(this, prompt) == QMessageBox::Yes)
        QDesktopServices::openUrl(link);
}

void frmHelp::ShowTopic(const QString& topic)
{
    // Shown first: where an anchor is depends on the width of the page.
    isMinimized() ? showNormal() : show();
    brwPage_->ShowTopic(topic);
    raise();
    activateWindow();
    brwPage_->setFocus();
}

void frmHelp::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        SetFormTexts(*this);
        brwPage_->ShowLanguage();
        FillContents();
    }
    QMainWindow::changeEvent(event);
}

}  // namespace rqm5
