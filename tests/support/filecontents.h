#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

// The bytes of the file at path; empty when it cannot be read.
inline QByteArray fileContents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
