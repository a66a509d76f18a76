#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "image/display_text.h"
#include "memory/change_words.h"

namespace rqm5 {

Status RunDiff(const Arguments& arguments, Console& console)
{
    CloneImage a;
    CloneImage b;
    auto problem = Load(arguments[0], a);
    if (!problem)
        problem = Load(arguments[1], b);
    if (problem)
        return Fail(console, *problem);
    const std::vector<std::string> differences = DescribeChange(a, Difference(a, b));
    for (const std::string& difference : differences)
        console.out << VisibleText(difference) << '\n';
    return differences.empty() ? Status::Done : Status::Failed;
}

}  // namespace rqm5
