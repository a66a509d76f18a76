// Makes the pictures of README and manual: drives the real windows against the simulated receiver.
// Usage: rq-m5-screenshots FOLDER [LANGUAGE [PERCENT [dark|contrast]]]

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QTemporaryDir>

#include "app/window_tour.h"
#include "language/language.h"

namespace {

/// Text of another size, as a desktop sets it.
void SetTextSize(int percent)
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * percent / 100);
    QApplication::setFont(font);
}

void SetColours(const QString& name)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (name == QLatin1String("dark")) {
        QPalette dark(QColor(53, 53, 53));
        dark.setColor(QPalette::Base, QColor(35, 35, 35));
        QApplication::setPalette(dark);
    } else if (name == QLatin1String("contrast")) {
        QPalette contrast(Qt::white, Qt::black, Qt::white, Qt::gray, Qt::lightGray, Qt::white, Qt::white,
                          Qt::black, Qt::black);
        contrast.setColor(QPalette::Highlight, Qt::yellow);
        contrast.setColor(QPalette::HighlightedText, Qt::black);
        QApplication::setPalette(contrast);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    qputenv("HOME", settings.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 2 || !QDir().mkpath(words[1]))
        qFatal("usage: rq-m5-screenshots FOLDER [LANGUAGE [PERCENT [dark|contrast]]]");
    QApplication::setQuitOnLastWindowClosed(false);
    rqm5::Language::OfProgram().Use(words.value(2, QStringLiteral("en")));
    SetTextSize(words.value(3, QStringLiteral("100")).toInt());
    if (words.size() > 4)
        SetColours(words[4]);

    const QDir folder(words[1]);
    rqm5::WindowTour tour([&folder](QWidget& window, const QString& name) {
        const QString path = folder.filePath(name + QStringLiteral(".png"));
        if (!window.grab().save(path))
            qFatal("cannot write %s", qPrintable(path));
    });
    tour.Start();
    tour.Go();
}
