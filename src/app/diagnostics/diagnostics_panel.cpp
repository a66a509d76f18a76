#include "app/diagnostics/diagnostics_panel.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/diagnostics/diagnostics_texts.h"
#include "files/file_store.h"
#include "language/language.h"
#include "language/translated.h"
#include "link/block_address.h"
#include "link/memory_map.h"
#include "ui/error_prompt.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

constexpr int kLinkTestReads = 100;
constexpr int kReplyLines = 7;
constexpr int kLogLines = 6;

template <typename Control>
Control* Named(Control* control, const char* name)
{
    control->setObjectName(QLatin1String(name));
    return control;
}

}  // namespace

DiagnosticsPanel::DiagnosticsPanel(const CloneImage& image, RadioLink& link, TransferCommands& transfers,
                                   Dialogs& dialogs, QWidget* parent)
    : QDockWidget(parent),
      image_(image),
      link_(link),
      transfers_(transfers),
      dialogs_(dialogs),
      log_(new ExchangeLog(link, this))
{
    setObjectName(QStringLiteral("dckDiagnostics"));
    setWindowTitle(Designed(QT_TR_NOOP("Diagnostics")));
    setFeatures(DockWidgetClosable | DockWidgetMovable);
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea);
    auto* splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(MakeCommands());
    splitter->addWidget(MakeLog());
    setWidget(splitter);
    Connect();
}

QWidget* DiagnosticsPanel::MakeCommands()
{
    auto* holder = new QWidget(this);
    txtRawAddress_ = Named(new QLineEdit(holder), "txtRawAddress");
    txtRawAddress_->setPlaceholderText(QStringLiteral("1000"));
    txtRawAddress_->setMaximumWidth(12 * fontMetrics().averageCharWidth());
    auto* address = new QLabel(Designed(QT_TR_NOOP("Bloc&k address")), holder);
    address->setBuddy(txtRawAddress_);
    cmbRawRead_ = Named(new QPushButton(Designed(QT_TR_NOOP("Read Block")), holder), "cmbRawRead");
    cmbRawRead_->setToolTip(Designed(QT_TR_NOOP("Sends one read command and shows the reply as it comes")));
    lblRawFault_ = Named(new QLabel(holder), "lblRawFault");
    lblRawFault_->setWordWrap(true);
    txtRawReply_ = Named(new QPlainTextEdit(holder), "txtRawReply");
    txtRawReply_->setAccessibleName(Designed(QT_TR_NOOP("Reply")));
    txtRawReply_->setReadOnly(true);
    txtRawReply_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtRawReply_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    txtRawReply_->setMinimumHeight(kReplyLines * txtRawReply_->fontMetrics().lineSpacing());
    cmbLinkTest_ = Named(new QPushButton(Designed(QT_TR_NOOP("Link Test")), holder), "cmbLinkTest");
    cmbLinkTest_->setToolTip(
        Designed(QT_TR_NOOP("Reads one block a hundred times and shows the round-trip times")));
    lblLinkTest_ = Named(new QLabel(holder), "lblLinkTest");
    lblLinkTest_->setWordWrap(true);
    for (QLabel* label : {lblRawFault_, lblLinkTest_})
        label->setTextFormat(Qt::PlainText);

    auto* grid = new QGridLayout(holder);
    grid->addWidget(address, 0, 0);
    grid->addWidget(txtRawAddress_, 0, 1);
    grid->addWidget(cmbRawRead_, 0, 2);
    grid->addWidget(lblRawFault_, 0, 3);
    grid->addWidget(txtRawReply_, 1, 0, 1, 4);
    grid->addWidget(cmbLinkTest_, 2, 0);
    grid->addWidget(lblLinkTest_, 2, 1, 1, 3);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(1, 1);
    return holder;
}

QWidget* DiagnosticsPanel::MakeLog()
{
    auto* holder = new QWidget(this);
    tblExchanges_ = Named(new QTableView(holder), "tblExchanges");
    tblExchanges_->setAccessibleName(Designed(QT_TR_NOOP("Exchanges with the receiver")));
    tblExchanges_->setModel(log_);
    tblExchanges_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    tblExchanges_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tblExchanges_->setTabKeyNavigation(false);
    tblExchanges_->setWordWrap(false);
    const QFontMetrics metrics = tblExchanges_->fontMetrics();
    tblExchanges_->verticalHeader()->hide();
    tblExchanges_->verticalHeader()->setDefaultSectionSize(metrics.lineSpacing() + 4);
    tblExchanges_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    tblExchanges_->setMinimumHeight(kLogLines * (metrics.lineSpacing() + 4));
    // The reply takes what is left; what does not fit is in the tool tip.
    tblExchanges_->horizontalHeader()->setSectionResizeMode(ExchangeLog::kReply, QHeaderView::Stretch);
    const int widths[] = {14, 14, 0, 10};  // characters
    for (int column = 0; column < ExchangeLog::kLogColumns; ++column)
        tblExchanges_->setColumnWidth(column, widths[column] * metrics.averageCharWidth());
    cmbSaveLog_ = Named(new QPushButton(Designed(QT_TR_NOOP("Save Log...")), holder), "cmbSaveLog");
    cmbClearLog_ = Named(new QPushButton(Designed(QT_TR_NOOP("Clear Log")), holder), "cmbClearLog");

    auto* grid = new QGridLayout(holder);
    grid->addWidget(tblExchanges_, 0, 0, 1, 3);
    grid->addWidget(cmbSaveLog_, 1, 0);
    grid->addWidget(cmbClearLog_, 1, 1);
    grid->setColumnStretch(2, 1);
    return holder;
}

void DiagnosticsPanel::Connect()
{
    connect(cmbRawRead_, &QPushButton::clicked, this, &DiagnosticsPanel::cmbRawRead_Click);
    connect(txtRawAddress_, &QLineEdit::returnPressed, this, &DiagnosticsPanel::cmbRawRead_Click);
    connect(txtRawAddress_, &QLineEdit::textEdited, this, [this] { Tell(fault_, {}); });
    connect(cmbLinkTest_, &QPushButton::clicked, this, &DiagnosticsPanel::cmbLinkTest_Click);
    connect(cmbSaveLog_, &QPushButton::clicked, this, &DiagnosticsPanel::cmbSaveLog_Click);
    connect(cmbClearLog_, &QPushButton::clicked, log_, &ExchangeLog::Clear);
    connect(&Language::OfProgram(), &Language::Changed, this, &DiagnosticsPanel::ShowTexts);
    connect(&transfers_, &TransferCommands::Started, this, [this] { SetLineBusy(true); });
    connect(&transfers_, &TransferCommands::Ended, this, [this] { SetLineBusy(false); });
    // The newest exchange stays in sight unless somebody scrolled up to look at an older one.
    connect(log_, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar& bar = *tblExchanges_->verticalScrollBar();
        isLogAtEnd_ = bar.value() == bar.maximum();
    });
    connect(log_, &QAbstractItemModel::rowsInserted, this, [this] {
        if (isLogAtEnd_)
            tblExchanges_->scrollToBottom();
    });
}

/// Shows another text in the place of one of those that tell of the line.
void DiagnosticsPanel::Tell(Message& text, Message now)
{
    text = std::move(now);
    ShowTexts();
}

void DiagnosticsPanel::ShowTexts()
{
    lblRawFault_->setText(Translated(fault_));
    lblLinkTest_->setText(Translated(linkTest_));
    lblLinkTest_->setToolTip(lblLinkTest_->text());
    // The grid counts on one line of a text that needs more of them.
    lblLinkTest_->setMinimumHeight(std::max(0, lblLinkTest_->heightForWidth(lblLinkTest_->width())));
    // What was scrolled to stays in sight.
    const int scrolled = txtRawReply_->verticalScrollBar()->value();
    if (const QString reply = Translated(reply_); reply != txtRawReply_->toPlainText())
        txtRawReply_->setPlainText(reply);
    txtRawReply_->verticalScrollBar()->setValue(scrolled);
}

void DiagnosticsPanel::SetLineBusy(bool isBusy)
{
    txtRawAddress_->setReadOnly(isBusy);
    cmbRawRead_->setEnabled(!isBusy);
    cmbLinkTest_->setEnabled(!isBusy);
    // The transfer waits in an event loop below that of the file dialog, and would stand still.
    cmbSaveLog_->setEnabled(!isBusy);
}

void DiagnosticsPanel::cmbRawRead_Click()
{
    const std::string typed = txtRawAddress_->text().trimmed().toStdString();
    Tell(fault_, BlockAddressFault(typed));
    const std::optional<int> address = ReadBlockAddress(typed);
    if (!address) {
        Tell(reply_, {});
        txtRawAddress_->setFocus();
        txtRawAddress_->selectAll();
        return;
    }
    transfers_.RunOther([this, address] {
        const RawReply reply = ReadRaw(link_, *address);
        Tell(reply_, transfers_.IsStopped() ? Message(MESSAGE("Cancelled."))
                                            : RawReplyText(image_, *address, reply, link_.Port()));
    });
}

void DiagnosticsPanel::cmbLinkTest_Click()
{
    Tell(linkTest_, {});
    transfers_.RunOther([this] {
        transfers_.ShowProgress(kLinkTestReads - 1);
        const LinkTestResult result = TestLink(link_, AreaOf(Area::Settings).address, kLinkTestReads,
                                               [this](int reads) { return GoesOnAfter(reads); });
        Tell(linkTest_, LinkTestText(result, link_.Port()));
    });
}

bool DiagnosticsPanel::GoesOnAfter(int reads)
{
    transfers_.MoveProgress(reads);
    return !transfers_.IsStopped();
}

void DiagnosticsPanel::cmbSaveLog_Click()
{
    const QString path = dialogs_.ChooseFile(this, FileChoice::SaveText, QStringLiteral("rq-m5-log.txt"));
    if (path.isEmpty())
        return;
    if (const auto problem = WriteWholeFile(path, log_->Text().toStdString()))
        dialogs_.Ask(this, ErrorPrompt(*problem));
}

}  // namespace rqm5
