#pragma once

#include "config/configreader.h"

#include <QCoreApplication>
#include <QString>

class QDomDocument;

/*
 * Decides whether a file can be a Zelkon configuration before the document is replaced
 * by it. The document layer reads silently and accepts any XML, so without this check a
 * typo or a wrong file would quietly empty the wizard.
 */
class ConfigFileCheck
{
    Q_DECLARE_TR_FUNCTIONS(ConfigFileCheck)

public:
    ConfigFileCheck() = delete;

    // Why path is not a readable configuration (a sentence for the user), or an empty
    // text when it is one.
    static QString problem(const QString& path);
    // What can be told without reading the file: that it is missing or a folder.
    static QString problemBeforeReading(const QString& path);
    // Why a file that was read into document with this result is not a configuration.
    static QString problem(const ConfigReader::Result& result, const QDomDocument& document);

private:
    static QString tooLarge();
    static QString notXml(qint64 line, qint64 column, const QString& message);
};
