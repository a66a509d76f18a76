#include "help/about_facts.h"

#include <QDir>
#include <QSysInfo>

#include "help/build_info.h"
#include "image/value_tables.h"
#include "language/translated.h"
#include "ui/plain_text.h"
#include "ui/settings_store.h"

namespace rqm5 {
namespace {

QString PortText(int port, const QString& device)
{
    const QString number = QStringLiteral("COM %1").arg(port);
    return device.isEmpty() ? Translated({MESSAGE("%1 (no device)"), {number.toStdString()}})
                            : number + QStringLiteral(", ") + VisibleText(device);
}

QString SettingsPath()
{
    return SettingsStore().fileName();
}

}  // namespace

QList<AboutFact> AboutFacts(const QString& portFile, int port, const QString& device)
{
    const QString name = QString::fromUtf8(AppTitle.data(), static_cast<qsizetype>(AppTitle.size()));
    return {
        {Translated(MESSAGE("Program")), name},
        {Translated(MESSAGE("Version")), QStringLiteral(RQM5_VERSION)},
        {Translated(MESSAGE("Build")), QString::fromUtf8(kBuild)},
        {Translated(MESSAGE("Licence")), Translated(MESSAGE("MIT"))},
        {Translated(MESSAGE("Qt")),
         Translated({MESSAGE("%1, built with %2"), {std::string(qVersion()), std::string(QT_VERSION_STR)}})},
        {Translated(MESSAGE("System")),
         QSysInfo::prettyProductName() + QStringLiteral(", ") + QSysInfo::currentCpuArchitecture()},
        {Translated(MESSAGE("Settings")), VisibleText(QDir::toNativeSeparators(SettingsPath()))},
        {Translated(MESSAGE("Port number file")), VisibleText(QDir::toNativeSeparators(portFile))},
        {Translated(MESSAGE("Port")), PortText(port, device)},
    };
}

QString AboutText(const QList<AboutFact>& facts)
{
    QString text;
    for (const AboutFact& fact : facts)
        text += fact.name + QStringLiteral(": ") + fact.value + QLatin1Char('\n');
    return text;
}

}  // namespace rqm5
