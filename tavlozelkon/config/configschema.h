#pragma once

#include "tavlozelkon_lib_export.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QXmlSchema>
#include <memory>

class QXmlSchemaValidator;

/*
 * The published description of ".tavlocfg" files (tavlocfg.xsd, shipped inside the
 * library and installed beside the application) and a checker that tells every problem
 * of a file with its line and column, for the command line and for editors that
 * annotate. Unlike ConfigFile::validate() it shows nothing and changes nothing.
 */
class TAVLOZELKON_LIB_EXPORT ConfigSchema
{
public:
    struct Problem
    {
        qint64 line = 0;
        qint64 column = 0;
        QString message;
    };

    // The schema shipped with the library.
    static QByteArray shipped();

    // A schema that does not compile leaves isValid() false and every check failing.
    explicit ConfigSchema(const QByteArray& schemaData = shipped());
    ~ConfigSchema();
    ConfigSchema(const ConfigSchema&) = delete;
    ConfigSchema& operator=(const ConfigSchema&) = delete;

    bool isValid() const { return m_schema.isValid(); }
    // Why the schema did not compile; empty when it did.
    QString schemaError() const { return m_schemaError; }

    // Empty when the document is well-formed, has the root "zelkon" and is valid.
    QList<Problem> check(const QByteArray& document) const;

    // The validator's messages come as XHTML fragments.
    static QString plainText(const QString& message);

private:
    QXmlSchema m_schema;
    QString m_schemaError;
    // Made once: checking thousands of files in one call must not build it for each.
    std::unique_ptr<QXmlSchemaValidator> m_validator;
};
