#include "help/about_facts.h"

#include <QCoreApplication>
#include <QDir>
#include <QSysInfo>

#include "help/build_info.h"
#include "image/value_tables.h"
#include "ui/plain_text.h"
#include "ui/settings_store.h"

namespace rqm5 {
namespace {

QString Translate(const char* text)
{
    return QCoreApplication::translate("About", text);
}

QString PortText(int port, const QString& device)
{
    const QString number = QStringLiteral("COM %1").arg(port);
    return device.isEmpty() ? Translate("%1 (no device)").arg(number)
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
        {Translate("Program"), name},
        {Translate("Version"), QStringLiteral(RQM5_VERSION)},
        {Translate("Build"), QString::fromUtf8(kBuild)},
        {Translate("Licence"), Translate("MIT")},
        {Translate("Qt"),
         Translate("%1, built with %2").arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR))},
        {Translate("System"),
         QSysInfo::prettyProductName() + QStringLiteral(", ") + QSysInfo::currentCpuArchitecture()},
        {Translate("Settings"), VisibleText(QDir::toNativeSeparators(SettingsPath()))},
        {Translate("Port number file"), VisibleText(QDir::toNativeSeparators(portFile))},
        {Translate("Port"), PortText(port, device)},
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
