#include "app/splash.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "image/value_tables.h"
#include "ui/icons.h"

namespace rqm5 {

namespace {

QLabel* TextLine(const QString& text, double size, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(size > 1);
    label->setFont(font);
    return label;
}

}  // namespace

frmSplash::frmSplash() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("frmSplash"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* row = new QHBoxLayout(this);
    constexpr int kMargin = 28;
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->setSpacing(kMargin);
    auto* picture = new QLabel(this);
    constexpr int kPictureSize = 96;
    picture->setPixmap(ProgramIcon().pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatio()));
    row->addWidget(picture);

    auto* lines = new QVBoxLayout;
    lines->setSpacing(kMargin / 4);
    constexpr double kTitleSize = 1.5;
    const QString title = QString::fromUtf8(AppTitle.data(), static_cast<qsizetype>(AppTitle.size()));
    lines->addStretch();
    lines->addWidget(TextLine(title, kTitleSize, this));
    lines->addWidget(TextLine(tr("Version %1").arg(QStringLiteral(RQM5_VERSION)), 1, this));
    lines->addWidget(TextLine(tr("Reads, edits and writes the receiver's memory"), 1, this));
    lines->addStretch();
    row->addLayout(lines);
}

void frmSplash::ShowAtOnce()
{
    adjustSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    show();
    repaint();
    // A window system shows a new window only once its events have been taken.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace rqm5
