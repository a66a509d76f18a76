#include "app/status_bar.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace rqm5 {

namespace {

constexpr int kFieldMargin = 6;
constexpr const char* kModelNames[] = {"RQ-M5 J", "RQ-M5 E", "RQ-M5 T", "RQ-M5 K"};

QString ModelName(int model)
{
    return model >= 0 && model < kRegions ? QLatin1String(kModelNames[model])
                                          : StatusBar::tr("Sibling model");
}

/// Ends a text that is too long with an ellipsis instead of in the middle of a letter.
class ElidedLabel : public QLabel
{
  public:
    using QLabel::QLabel;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()),
                              foregroundRole());
    }
};

}  // namespace

StatusBar::StatusBar(QWidget* parent)
    : QStatusBar(parent),
      lblHint_(new ElidedLabel(this)),
      lblFileState_(new QLabel(this)),
      lblRegion_(new QLabel(this)),
      lblEnabled_(new QLabel(this)),
      lblPort_(new QLabel(this))
{
    setObjectName(QStringLiteral("sbStatusBar"));
    lblHint_->setObjectName(QStringLiteral("lblHint"));
    lblHint_->setTextFormat(Qt::PlainText);
    // A long hint is cut off rather than keeping the window from getting smaller.
    lblHint_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
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
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { ShowHintOf(now); });
}

void StatusBar::ShowImage(const CloneImage& image, bool hasFile)
{
    const auto enabled = std::count(image.MemEnable.begin(), image.MemEnable.begin() + kRadioRows, true);
    lblFileState_->setText(image.DataChanged ? tr("Changed") : hasFile ? tr("Saved") : tr("New"));
    lblRegion_->setText(ModelName(image.Settings.model));
    lblEnabled_->setText(tr("Channels enabled: %1").arg(enabled));
}

void StatusBar::ShowNote(const QString& text)
{
    if (text == note_)
        return;
    note_ = text;
    lblHint_->setText(text);
    // The bar may be too narrow for all of it; a paragraph is broken into lines.
    lblHint_->setToolTip(text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()));
}

void StatusBar::ShowPort(int number, const QString& device)
{
    lblPort_->setText(tr("COM %1: %2").arg(number).arg(device.isEmpty() ? tr("no device") : device));
}

void StatusBar::ShowHintOf(const QWidget* focused)
{
    if (note_.isEmpty() && focused != nullptr && focused->window() == window())
        lblHint_->setText(focused->statusTip());
}

}  // namespace rqm5
