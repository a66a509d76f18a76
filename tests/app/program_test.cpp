#include <gtest/gtest.h>

#include <QProcess>

namespace rqm5 {
namespace {

TEST(CloneProgram, AnswersAtTheTerminalWithoutADisplay)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(QLatin1String(display));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    const std::pair<const char*, const char*> cases[] = {{"--help", "Clone file to open."},
                                                         {"-h", "[FILE]"},
                                                         {"--version", RQM5_VERSION},
                                                         {"-v", RQM5_VERSION}};
    for (const auto& [word, text] : cases) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(RQM5_CLONE_PROGRAM),
                      {QStringLiteral("-style"), QStringLiteral("fusion"), QLatin1String(word)});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_TRUE(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0) << word;
        EXPECT_TRUE(program.readAllStandardOutput().contains(text)) << word;
    }
}

}  // namespace
}  // namespace rqm5
