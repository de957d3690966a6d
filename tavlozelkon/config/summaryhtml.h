#pragma once

#include <QHash>
#include <QString>

class ConfigFile;
class QDomElement;

/*
 * Renders sections of a configuration document as the summary's HTML, appending to one
 * string. A summary repeats the same few labels for every record, so each label is
 * looked up and escaped once per rendering; values are escaped straight into the string.
 * Labels are looked up when the rendering asks for them, so that they follow the
 * language in force at that moment.
 */
class SummaryHtml
{
public:
    // The labels are the document's section aliases.
    explicit SummaryHtml(ConfigFile& config);

    void appendSection(const QDomElement& section);
    void appendSession(const QDomElement& element);
    void appendGeneralSettings(const QDomElement& element);
    void appendProxySettings(const QDomElement& element);

    QString take();

private:
    void appendLabel(const QString& tag);
    // As QString::toHtmlEscaped(), without a copy of the text.
    void appendEscaped(const QString& text);

    ConfigFile& m_config;
    QHash<QString, QString> m_labels;
    QString m_html;
};
