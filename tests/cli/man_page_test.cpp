#include <gtest/gtest.h>

#include "cli/command.h"
#include "cli/command_run.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace rqm5 {
namespace {

std::string Without(std::string text, const std::string& part, const std::string& by = {})
{
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size()))
        text.replace(at, part.size(), by);
    return text;
}

/// The page as it is read: nothing escaped, and no fonts.
std::string Page()
{
    std::string page = Bytes(RQM5_MAN_PAGE);
    for (const auto& [mark, character] : {std::pair("\\-", "-"), {"\\(ti", "~"}, {"\\(aq", "'"}, {"\\&", ""}})
        page = Without(page, mark, character);
    return page;
}

TEST(ManPage, NamesEveryCommandWithItsOptions)
{
    const std::string page = Page();
    for (const Command& command : Commands()) {
        const std::string name(command.name);
        std::string section;
        for (std::size_t at = page.find("\n.SS "); at != std::string::npos;
             at = page.find("\n.SS ", at + 1)) {
            const std::string heading = ' ' + page.substr(at + 5, page.find('\n', at + 1) - at - 5) + ',';
            if (Has(heading, ' ' + name + ','))
                section = page.substr(at, page.find("\n.S", at + 1) - at);
        }
        EXPECT_TRUE(Has(section, "rq-m5 " + name)) << name;
        for (const Option& option : command.options)
            EXPECT_TRUE(Has(section, std::string(option.name))) << name << ' ' << option.name;
    }
}

TEST(ManPage, ItsExamplesRun)
{
    SimOptions options;
    options.memory = MemoryFromImage(DemoImage(0));
    SimSession receiver(options);
    const Folder folder;
    const std::string page = Page();
    std::string script;
    for (std::size_t at = page.find(".EX\n"); at != std::string::npos; at = page.find(".EX\n", at + 1))
        script += page.substr(at + 4, page.find(".EE", at) - at - 4);
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("RQM5_COM5"), receiver.Device());
    environment.insert(QStringLiteral("PATH"), QFileInfo(QStringLiteral(RQM5_PROGRAM)).path() +
                                                   QLatin1Char(':') +
                                                   environment.value(QStringLiteral("PATH")));
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(QString::fromStdString(folder / "."));
    shell.start(QStringLiteral("sh"), {QStringLiteral("-exc"), QString::fromStdString(script)});
    const RunResult run = FinishProgram(shell);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_GE(std::count(script.begin(), script.end(), '\n'), 10);
    EXPECT_TRUE(Bytes(folder / "enabled.RQ5").starts_with("Tervan"));
}

}  // namespace
}  // namespace rqm5
