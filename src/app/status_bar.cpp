#include "app/status_bar.h"

#include <QApplication>
#include <QKeyEvent>

#include "ui/elided_label.h"

namespace rqm5 {

namespace {

constexpr int kFieldMargin = 6;
constexpr int kPortColumns = 36;
QString ModelName(int model)
{
    if (model < 0 || model >= kRegions)
        return StatusBar::tr("Sibling model");
    const std::string_view name = RegionOf(model).model;
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
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
      lblFileState_(new QLabel(this)),
      lblRegion_(new QLabel(this)),
      lblEnabled_(new QLabel(this)),
      lblPort_(new ElidedLabel(Qt::ElideMiddle, this))
{
    setObjectName(QStringLiteral("sbStatusBar"));
    lblHint_->setObjectName(QStringLiteral("lblHint"));
    lblHint_->setContentsMargins(kFieldMargin, 0, 0, 0);
    addWidget(lblHint_, 1);
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
}

bool StatusBar::eventFilter(QObject* watched, QEvent* event)
{
    if (!note_.isEmpty() && IsAction(*event) && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->window() == window())
        ShowNote({});
    return QStatusBar::eventFilter(watched, event);
}

void StatusBar::ShowDocument(const Document& document)
{
    const bool hasFile = !document.FileName().isEmpty();
    lblFileState_->setText(document.DataChanged() ? tr("Changed") : hasFile ? tr("Saved") : tr("New"));
    lblRegion_->setText(ModelName(document.Image().Settings().model));
    lblEnabled_->setText(tr("Channels enabled: %1").arg(EnabledChannels(document.Image())));
}

void StatusBar::ShowNote(const QString& text)
{
    note_ = text;
    ShowFirstText();
}

void StatusBar::ShowWarning(const QString& text)
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
    for (const QString& text : {note_, pointerHint_, warning_, focusHint_})
        if (!text.isEmpty())
            return lblHint_->setText(text);
    lblHint_->clear();
}

}  // namespace rqm5
