#pragma once

#include <QString>

// One network printer of the target thin client. Port and driver may be empty.
struct NetworkPrinter
{
    QString name;
    QString address;
    QString port;
    QString driver;
};
