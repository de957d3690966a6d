// Runs a tool with a short time-out and ends at once, as the application does when the
// user quits right after a tool timed out.
//
// toolrunnerhelper <program> <time-out in ms>

#include "device/externaltool.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (app.arguments().size() != 3)
        return 2;
    const ExternalTool::Result result = ExternalTool::execute(app.arguments().at(1), {}, app.arguments().at(2).toInt());
    return result.outcome == ExternalTool::Result::Outcome::TimedOut ? 0 : 1;
}
