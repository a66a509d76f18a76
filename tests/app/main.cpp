#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

namespace rqm5 {
/// Only the program that tests recovery has it: it is started once more to be killed.
[[gnu::weak]] int EditUntilKilled(const QString& stateFolder, const QString& file);
[[gnu::weak]] int EditUntilEnded(const QString& stateFolder, const QString& file);
}  // namespace rqm5

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // The settings of whoever runs the tests stay as they are.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("HOME", home.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    for (int number = 1; number <= 14; ++number)
        qunsetenv(qPrintable(QStringLiteral("RQM5_COM%1").arg(number)));
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList words = QCoreApplication::arguments();
    if (rqm5::EditUntilKilled != nullptr && words.size() == 4 &&
        words[1] == QLatin1String("--edit-until-killed"))
        return rqm5::EditUntilKilled(words[2], words[3]);
    if (rqm5::EditUntilEnded != nullptr && words.size() == 4 &&
        words[1] == QLatin1String("--edit-until-ended"))
        return rqm5::EditUntilEnded(words[2], words[3]);
    return RUN_ALL_TESTS();
}
