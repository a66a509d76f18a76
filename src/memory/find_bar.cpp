#include "memory/find_bar.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>

#include "image/display_text.h"
#include "language/language.h"
#include "language/translated.h"
#include "memory/channel_search.h"
#include "memory/row_names.h"
#include "ui/form_texts.h"
#include "ui/table_font.h"

namespace rqm5 {
namespace {

constexpr int kMostLines = 14;
constexpr int kCountLetters = 12;

}  // namespace

FindBar::FindBar(const Document& document, QWidget* page)
    : QWidget(page),
      document_(document),
      page_(page),
      txtFind_(new QLineEdit(this)),
      lblFound_(new QLabel(this)),
      lstFound_(new QListWidget(page))
{
    txtFind_->setObjectName(QStringLiteral("txtFind"));
    txtFind_->setAccessibleName(Designed(QT_TR_NOOP("Find channels")));
    txtFind_->setPlaceholderText(Designed(QT_TR_NOOP("Find (Ctrl+F)")));
    txtFind_->setStatusTip(Designed(
        QT_TR_NOOP("Frequency, note, mode or tone, in all groups. Enter goes there, F3 to the next")));
    txtFind_->setClearButtonEnabled(true);
    txtFind_->installEventFilter(this);
    setFocusProxy(txtFind_);
    lblFound_->setObjectName(QStringLiteral("lblFound"));
    lblFound_->setTextFormat(Qt::PlainText);
    lblFound_->setMinimumWidth(fontMetrics().averageCharWidth() * kCountLetters);
    lstFound_->setObjectName(QStringLiteral("lstFound"));
    lstFound_->setAccessibleName(Designed(QT_TR_NOOP("Channels found")));
    lstFound_->setFrameStyle(QFrame::Box | QFrame::Plain);
    // The box keeps the focus, so that one can go on typing.
    lstFound_->setFocusPolicy(Qt::NoFocus);
    lstFound_->hide();
    page_->installEventFilter(this);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(txtFind_, 1);
    row->addWidget(lblFound_);
    connect(txtFind_, &QLineEdit::textChanged, this, &FindBar::txtFind_Change);
    connect(lstFound_, &QListWidget::itemClicked, this, [this] { Finish(lstFound_->currentRow()); });
    const auto expire = [this] {
        isStale_ = true;
        if (lstFound_->isVisible())
            OpenList();
    };
    connect(&document, &Document::Changed, this, expire);
    connect(&document, &Document::Replaced, this, expire);
    connect(&Language::OfProgram(), &Language::Changed, this, expire);
    connect(&Language::OfProgram(), &Language::Changed, this, &FindBar::ShowCount);
}

void FindBar::Begin()
{
    txtFind_->setFocus(Qt::ShortcutFocusReason);
    txtFind_->selectAll();
    OpenList();
}

void FindBar::Step(int by)
{
    const int last = current_ >= 0 && current_ < static_cast<int>(hits_.size())
                         ? hits_[static_cast<std::size_t>(current_)]
                         : -1;
    if (!HasHits())
        return;
    const int count = static_cast<int>(hits_.size());
    const auto place = std::ranges::find(hits_, last);
    if (place != hits_.end())
        Choose(static_cast<int>(place - hits_.begin() + by + count) % count);
    else
        Choose(by > 0 ? 0 : count - 1);
}

bool FindBar::HasHits()
{
    Search();
    return !hits_.empty();
}

void FindBar::txtFind_Change()
{
    isStale_ = true;
    current_ = -1;
    OpenList();
}

void FindBar::Search()
{
    if (!std::exchange(isStale_, false))
        return;
    hits_ = FindChannels(document_.Image(), txtFind_->text().toStdString());
    lstFound_->clear();
    for (const int row : hits_)
        AddLine(LineOf(row));
    if (hits_.empty())
        AddLine(tr("Nothing found"))->setFlags(Qt::NoItemFlags);
    else
        lstFound_->setCurrentRow(0);
    ShowCount();
}

QListWidgetItem* FindBar::AddLine(const QString& text)
{
    auto* line = new QListWidgetItem(text, lstFound_);
    // As far apart as in other lists, however small the table's font looks.
    line->setSizeHint({0, fontMetrics().height() + 2});
    return line;
}

/// "Bank 2, channel 12     145.625000  FM   the note"
QString FindBar::LineOf(int row) const
{
    constexpr int kPlace = 23;
    constexpr int kFrequencyDigits = 11;
    constexpr int kModeLetters = 5;
    constexpr int kNoteLetters = 60;
    const CloneImage& image = document_.Image();
    const Message place = PlaceOfRow(image, row);
    const std::string frequency = image.MemText(row, kFrequency);
    const auto indent = static_cast<std::size_t>(std::max(0, kFrequencyDigits - DisplayWidth(frequency)));
    const std::string name = Said(place.empty() ? RowLabel(image, row) : place);
    const std::string line = PadToWidth(name, kPlace) + (DisplayWidth(name) < kPlace ? "" : " ") +
                             std::string(indent, ' ') + frequency + "  " +
                             PadToWidth(image.MemText(row, kMode), kModeLetters) +
                             VisibleText(CutToWidth(image.MemData(row).note, kNoteLetters));
    return QString::fromStdString(line);
}

void FindBar::Choose(int hit)
{
    if (hit < 0 || hit >= static_cast<int>(hits_.size()))
        return;
    current_ = hit;
    lstFound_->setCurrentRow(hit);
    ShowCount();
    emit Found(hits_[static_cast<std::size_t>(hit)]);
}

void FindBar::Finish(int hit)
{
    if (hits_.empty())
        return;
    lstFound_->hide();
    Choose(hit);
    emit Done();
}

void FindBar::ShowCount()
{
    const auto count = static_cast<qlonglong>(hits_.size());
    if (hits_.empty())
        lblFound_->clear();
    else if (current_ < 0)
        lblFound_->setText(tr("%1 found").arg(count));
    else
        lblFound_->setText(tr("%1 of %2").arg(current_ + 1).arg(count));
}

void FindBar::OpenList()
{
    Search();
    const bool isOpen = txtFind_->hasFocus() && !txtFind_->text().trimmed().isEmpty();
    lstFound_->setVisible(isOpen);
    if (isOpen)
        PlaceList();
}

void FindBar::PlaceList()
{
    ChangeFont(*lstFound_);
    const QPoint corner = txtFind_->mapTo(page_, QPoint(0, txtFind_->height()));
    const int frame = 2 * lstFound_->frameWidth();
    const int lines = std::min(lstFound_->count(), kMostLines);
    const int height =
        std::min(lines * lstFound_->sizeHintForRow(0) + frame, page_->height() - corner.y() - frame);
    constexpr int kLetters = 66;
    const int width = std::clamp(lstFound_->fontMetrics().averageCharWidth() * kLetters, txtFind_->width(),
                                 std::max(txtFind_->width(), page_->width()));
    const int left = std::clamp(corner.x(), 0, std::max(0, page_->width() - width));
    lstFound_->setGeometry(left, corner.y(), width, height);
    lstFound_->raise();
}

bool FindBar::txtFind_KeyDown(QKeyEvent& event)
{
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Search();
            Finish(lstFound_->currentRow());
            return true;
        case Qt::Key_Escape:
            lstFound_->hide();
            emit Left();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            OpenList();
            QCoreApplication::sendEvent(lstFound_, &event);
            return true;
        default:
            return false;
    }
}

bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == page_ && event->type() == QEvent::Resize && lstFound_->isVisible())
        PlaceList();
    if (watched == txtFind_ && (event->type() == QEvent::Move || event->type() == QEvent::Resize) &&
        lstFound_->isVisible())
        PlaceList();
    if (watched == txtFind_ && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        lstFound_->hide();
    if (watched == txtFind_ && event->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(this, &FindBar::OpenList, Qt::QueuedConnection);
    if (watched == txtFind_ && event->type() == QEvent::KeyPress &&
        txtFind_KeyDown(static_cast<QKeyEvent&>(*event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

}  // namespace rqm5
