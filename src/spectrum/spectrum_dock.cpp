#include "spectrum/spectrum_dock.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "spectrum/spectrum_file.h"
#include "spectrum/spectrum_view.h"
#include "ui/elided_label.h"
#include "ui/error_prompt.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

constexpr double kButtonZoom = 1.5;

}  // namespace

SpectrumDock::SpectrumDock(const Document& document, Dialogs& dialogs, QWidget* parent)
    : QDockWidget(Designed(QT_TR_NOOP("Spectrum")), parent), document_(document), dialogs_(dialogs)
{
    setObjectName(QStringLiteral("dckSpectrum"));
    auto* inside = new QWidget(this);
    view_ = new SpectrumView(document.Image(), inside);
    scroll_ = new QScrollBar(Qt::Vertical, inside);
    scroll_->setFocusPolicy(Qt::NoFocus);
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(MakeButtonRow());
    auto* row = new QHBoxLayout;
    row->addWidget(view_, 1);
    row->addWidget(scroll_);
    column->addLayout(row, 1);
    setWidget(inside);

    connect(view_, &SpectrumView::Moved, this, &SpectrumDock::ShowScroll);
    connect(view_, &SpectrumView::Named, lblSpectrumChannel_, &QLabel::setText);
    connect(view_, &SpectrumView::RowChosen, this, &SpectrumDock::RowChosen);
    connect(scroll_, &QScrollBar::valueChanged, view_, &SpectrumView::ScrollTo);
    connect(&document, &Document::Replaced, this, &SpectrumDock::ShowImage);
    connect(&document, &Document::Changed, this, [this](const ImageChange& change) {
        if (change.HasMemoryRows() || !change.BankSize.empty() || change.HasSetting(&ReceiverSettings::model))
            ShowImage();
    });
}

QLayout* SpectrumDock::MakeButtonRow()
{
    auto* row = new QHBoxLayout;
    const auto add = [&](const char* text, const char* name, const char* tip, auto press) {
        auto* button = new QToolButton;
        button->setText(Designed(text));
        button->setObjectName(QLatin1String(name));
        button->setToolTip(Designed(tip));
        button->setAccessibleName(Designed(tip));
        connect(button, &QToolButton::clicked, this, press);
        row->addWidget(button);
    };
    add("+", "cmbSpectrumNearer", QT_TR_NOOP("Zoom in (+, or the wheel)"),
        [this] { view_->Zoom(kButtonZoom); });
    add("\u2212", "cmbSpectrumFarther", QT_TR_NOOP("Zoom out (-, or the wheel)"),
        [this] { view_->Zoom(1 / kButtonZoom); });
    add(QT_TR_NOOP("All"), "cmbSpectrumAll", QT_TR_NOOP("Show the whole range (Home)"),
        [this] { view_->ShowAll(); });
    lblSpectrumChannel_ = new ElidedLabel(Qt::ElideRight, this);
    lblSpectrumChannel_->setObjectName(QStringLiteral("lblSpectrumChannel"));
    row->addWidget(lblSpectrumChannel_, 1);
    add(QT_TR_NOOP("Save Picture..."), "cmbSpectrumSave", QT_TR_NOOP("Save what is shown as PNG or SVG"),
        [this] { cmbSpectrumSave_Click(); });
    return row;
}

void SpectrumDock::ShowImage()
{
    isStale_ = !isVisible();
    if (!isStale_)
        view_->ShowImage();
}

void SpectrumDock::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    if (std::exchange(isStale_, false))
        view_->ShowImage();
}

void SpectrumDock::ShowScroll()
{
    const int highest = view_->HighestScroll();
    scroll_->setVisible(highest > 0);
    scroll_->setRange(0, highest);
    scroll_->setPageStep(view_->height());
    scroll_->setSingleStep(view_->fontMetrics().height());
    scroll_->setValue(view_->Scroll());
}

void SpectrumDock::cmbSpectrumSave_Click()
{
    const QString name = document_.FileName();
    const QFileInfo file(name.isEmpty() ? QStringLiteral("RQ-M5") : name);
    const QString suggested = QDir(file.path()).filePath(file.completeBaseName() + QStringLiteral(".png"));
    const QString path = dialogs_.ChooseFile(this, FileChoice::SavePicture, suggested);
    if (path.isEmpty())
        return;
    if (const auto problem = SaveSpectrum(path, view_->Scene(), view_->font()))
        dialogs_.Ask(this, ErrorPrompt(*problem));
}

}  // namespace rqm5
