#pragma once

#include <QCoreApplication>
#include <QString>

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

private:
    static QString tooLarge();
    static QString notXml(qint64 line, qint64 column, const QString& message);
};
