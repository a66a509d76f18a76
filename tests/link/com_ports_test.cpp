#include "link/com_ports.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <fstream>

#include "link/port_file.h"
#include "platform/plain_settings.h"

namespace rqm5 {
namespace {

TEST(ComPorts, TheEnvironmentGoesBeforeTheUsersChoiceBeforeTheUsualDevice)
{
    // clang-format off
    const std::pair<int, const char*> kUsual[] = {
        {0, ""}, {4, "/dev/ttyS3"}, {5, "/dev/ttyUSB0"}, {9, "/dev/ttyUSB4"},
        {10, "/dev/ttyACM0"}, {14, "/dev/ttyACM4"}, {15, ""}};
    // clang-format on
    for (const auto& [number, device] : kUsual)
        EXPECT_EQ(DeviceOfComPort(number), QString::fromLatin1(device));
    SetDeviceOfComPort(3, QStringLiteral("/dev"));
    EXPECT_EQ(DeviceOfComPort(3), QStringLiteral("/dev"));
    EXPECT_TRUE(ComPorts()[2].isPresent);
    qputenv("RQM5_COM3", "/dev/fromEnvironment");
    EXPECT_EQ(DeviceOfComPort(3), QStringLiteral("/dev/fromEnvironment"));
    EXPECT_FALSE(ComPorts()[2].isPresent);
    qunsetenv("RQM5_COM3");
    if (const auto ports = SystemPorts(); !ports.isEmpty()) {
        for (const char* variable : {"RQM5_COM1", "RQM5_COM9"})
            qputenv(variable, ports[0].device.toLocal8Bit());
        EXPECT_EQ(SystemPorts()[0].number, 1) << "the lowest of its numbers";
        for (const char* variable : {"RQM5_COM1", "RQM5_COM9"})
            qunsetenv(variable);
    }
    SetDeviceOfComPort(3, {});
    EXPECT_EQ(DeviceOfComPort(3), QStringLiteral("/dev/ttyS2"));
}

TEST(PortFile, HoldsANumberFromOneToFourteenInTheProgramsFolderOrElseTheUsers)
{
    const QTemporaryDir folder;
    const QString path = PortFilePath(folder.path());
    EXPECT_EQ(path, folder.filePath(QStringLiteral("RQ-M5.ini")));
    EXPECT_EQ(ReadPortFile(path), 1);
    const std::pair<const char*, int> kCases[] = {{"14\r\n", 14}, {"0\r\n", 1}, {"15\r\n", 1},
                                                  {"-3\r\n", 1},  {" 7\n", 7},  {"port", 1}};
    for (const auto& [text, number] : kCases) {
        std::ofstream(path.toStdString()) << text;
        EXPECT_EQ(ReadPortFile(path), number) << text;
    }
    EXPECT_TRUE(WritePortFile(path, 12) && ReadPortFile(path) == 12);
    const QString other = folder.filePath(QStringLiteral("rq-m5.ini"));
    EXPECT_TRUE(QFile::copy(path, other) && ReadPortFile(other) == 1);
    EXPECT_FALSE(WritePortFile(path + QStringLiteral("/RQ-M5.ini"), 1));

    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    const QString own = PortFilePath(QStringLiteral("/no/such/folder"));
    EXPECT_EQ(own, folder.filePath(QStringLiteral("Tervan/RQ-M5.ini")));
    EXPECT_TRUE(WritePortFile(own, 5) && ReadPortFile(own) == 5);

    // A pipe would keep whoever opens it waiting for ever.
    QFile::remove(path);
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(ReadPortFile(path), 1);
    EXPECT_FALSE(WritePortFile(path, 5));
    EXPECT_EQ(PortFilePath(folder.path()), own);
}

TEST(Settings, APipeInTheirPlaceIsPassedOver)
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Tervan")));
    const QString file = folder.filePath(QStringLiteral("Tervan/Tervan RQ-M5 Clone Utility.conf"));
    ASSERT_EQ(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    PassOverSettingsThatAreNoFiles();
    {
        QSettings settings(QStringLiteral("Tervan"), QStringLiteral("Tervan RQ-M5 Clone Utility"));
        settings.setValue(QStringLiteral("x"), 1);
        EXPECT_NE(settings.fileName(), file);
    }
    qputenv("XDG_CONFIG_HOME", before);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString::fromLocal8Bit(before));
}

}  // namespace
}  // namespace rqm5
