#include "app/status_bar.h"

#include <QApplication>
#include <QKeyEvent>

#include "language/language.h"
#include "language/translated.h"
#include "ui/elided_label.h"

namespace rqm5 {

namespace {

constexpr int kFieldMargin = 6;
constexpr int kPortColumns = 36;
QString ModelText(int model)
{
    const std::string_view name = model < kRegions ? ModelName(model) : std::string_view();
    return name.empty() ? StatusBar::tr("Sibling model")
                        : QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

int EnabledChannels(const CloneImage& image)
{
    int enabled = 0;
    for (int row = 0; row < kRadioRows; ++row)
        enabled += image.MemEnable(row) ? 1 : 0;
    return enabled;
}

/// A click or a key that does something; Alt on its way to another window does not.
bool IsAction(const QEvent& event)
{
    // A shortcut comes as nothing but the question whether a control wants the key for itself.
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride)
        return event.type() == QEvent::MouseButtonPress;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key != Qt::Key_Shift && key != Qt::Key_Control && key != Qt::Key_Alt && key != Qt::Key_Meta;
}

}  // namespace

StatusBar::StatusBar(QWidget* parent)
    : QStatusBar(parent),
      lblHint_(new ElidedLabel(Qt::ElideRight, this)),
      lblNoteDetails_(new QLabel(this)),
      lblFileState_(new QLabel(this)),
      lblRegion_(new QLabel(this)),
      lblEnabled_(new QLabel(this)),
      lblPort_(new ElidedLabel(Qt::ElideMiddle, this))
{
    setObjectName(QStringLiteral("sbStatusBar"));
    lblHint_->setObjectName(QStringLiteral("lblHint"));
    lblHint_->setContentsMargins(kFieldMargin, 0, 0, 0);
    addWidget(lblHint_, 1);
    lblNoteDetails_->setObjectName(QStringLiteral("lblNoteDetails"));
    lblNoteDetails_->setTextFormat(Qt::RichText);
    lblNoteDetails_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    lblNoteDetails_->hide();
    addWidget(lblNoteDetails_);
    connect(lblNoteDetails_, &QLabel::linkActivated, this, [this] {
        // What it tells may take the note away.
        if (const auto details = details_)
            details();
    });
    const std::pair<QLabel*, QString> fields[] = {{lblFileState_, QStringLiteral("lblFileState")},
                                                  {lblRegion_, QStringLiteral("lblRegion")},
                                                  {lblEnabled_, QStringLiteral("lblEnabled")},
                                                  {lblPort_, QStringLiteral("lblPort")}};
    for (const auto& [label, name] : fields) {
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(kFieldMargin, 0, kFieldMargin, 0);
        addPermanentWidget(label);
    }
    // Devices found by their name in /dev/serial have paths longer than the rest of the bar.
    lblPort_->setMaximumWidth(lblPort_->fontMetrics().averageCharWidth() * kPortColumns);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { ShowHintOf(now); });
    qApp->installEventFilter(this);
    connect(&Language::OfProgram(), &Language::Changed, this, &StatusBar::ShowLanguage);
    ShowLanguage();
}

/// What changes with the document is shown anew by whoever knows it; a note stays as it was said.
void StatusBar::ShowLanguage()
{
    lblNoteDetails_->setText(QStringLiteral("<a href=\"details\">%1</a>").arg(tr("Details")));
    pointerHint_.clear();
    ShowPortText();
    ShowFirstText();
}

bool StatusBar::eventFilter(QObject* watched, QEvent* event)
{
    if (!note_.isEmpty() && IsAction(*event) && watched->isWidgetType() && !IsOnLink(*event) &&
        static_cast<QWidget*>(watched)->window() == window())
        ShowNote({});
    return QStatusBar::eventFilter(watched, event);
}

/// On the way to the link of a note and on it, the note stays. A press that the link does not take for itself
/// goes on to what lies below it.
bool StatusBar::IsOnLink(const QEvent& event) const
{
    if (!details_)
        return false;
    if (event.type() == QEvent::MouseButtonPress) {
        const QPoint place = static_cast<const QMouseEvent&>(event).globalPosition().toPoint();
        return lblNoteDetails_->rect().contains(lblNoteDetails_->mapFromGlobal(place));
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool opens = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    return key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab || (opens && lblNoteDetails_->hasFocus());
}

void StatusBar::ShowDocument(const Document& document)
{
    const bool hasFile = !document.FileName().isEmpty();
    lblFileState_->setText(document.DataChanged() ? tr("Changed") : hasFile ? tr("Saved") : tr("New"));
    lblRegion_->setText(ModelText(document.Image().Settings().model));
    lblEnabled_->setText(tr("Channels enabled: %1").arg(EnabledChannels(document.Image())));
}

void StatusBar::ShowNote(const QString& text)
{
    ShowNoteWithDetails(text, {});
}

void StatusBar::ShowNoteWithDetails(const QString& text, std::function<void()> details)
{
    note_ = text;
    details_ = std::move(details);
    lblNoteDetails_->setVisible(static_cast<bool>(details_));
    ShowFirstText();
}

void StatusBar::ShowWarning(const Message& text)
{
    if (text != warning_)
        pointerHint_.clear();
    warning_ = text;
    ShowFirstText();
}

void StatusBar::ShowPointerHint(const QString& text)
{
    pointerHint_ = text;
    ShowFirstText();
}

void StatusBar::ShowPort(int number, const QString& device, bool isPresent)
{
    port_ = Port{number, device, isPresent};
    ShowPortText();
}

void StatusBar::ShowPortText()
{
    if (!port_)
        return;
    const auto& [number, device, isPresent] = *port_;
    const QString text = tr("COM %1: %2").arg(number).arg(device.isEmpty() ? tr("no device") : device);
    lblPort_->setText(isPresent || device.isEmpty() ? text : tr("%1, not present").arg(text));
}

void StatusBar::ShowHintOf(const QWidget* focused)
{
    if (focused == nullptr || focused->window() != window())
        return;
    focusHint_ = focused->statusTip();
    ShowFirstText();
}

void StatusBar::ShowFirstText()
{
    for (const QString& text : {note_, pointerHint_, Translated(warning_), focusHint_})
        if (!text.isEmpty())
            return lblHint_->setText(text);
    lblHint_->clear();
}

}  // namespace rqm5
