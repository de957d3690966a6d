#include "summaryhtml.h"

#include "configfile.h"
#include "connections/model/connectionmodel.h"

#include <QDomElement>
#include <utility>

SummaryHtml::SummaryHtml(ConfigFile& config)
    : m_config(config)
{
}

QString SummaryHtml::take()
{
    return std::exchange(m_html, QString());
}

void SummaryHtml::appendSection(const QDomElement& section)
{
    const QString tag = section.tagName();
    // Empty sections are left out, except that a supported connection type is listed even
    // without connections.
    if (!section.hasChildNodes() && !ConnectionModel::sSupportedConnectionTypes().contains(tag, Qt::CaseSensitive))
        return;

    m_html.append(QLatin1String("<h3>"));
    appendLabel(tag);
    m_html.append(QLatin1String("</h3><table>"));
    for (QDomElement child = section.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString childTag = child.tagName();
        if (childTag == QLatin1String("session")) {
            appendSession(child);
        } else if (childTag == QLatin1String("general_settings")) {
            appendGeneralSettings(child);
        } else {
            m_html.append(QLatin1String("<tr><td width =\"50%\">"));
            appendLabel(childTag);
            m_html.append(QLatin1String("</td><td>"));
            if (childTag == QLatin1String("passphrase") || childTag == QLatin1String("password"))
                m_html.append(QLatin1String("********"));
            else
                appendEscaped(child.firstChild().nodeValue());
            m_html.append(QLatin1String("</td></tr>"));
        }
    }
    m_html.append(QLatin1String("</table>"));
}

void SummaryHtml::appendSession(const QDomElement& element)
{
    // Records are shown as stored: a session's password is not masked.
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString childTag = child.tagName();
        if (childTag == QLatin1String("proxy")) {
            appendProxySettings(child);
            continue;
        }
        m_html.append(QLatin1String("<tr><td width=\"10%\"/><td width =\"50%\">"));
        appendLabel(childTag);
        m_html.append(QLatin1String("</td><td>"));
        // A value is one text node; text() would first copy it into a new string.
        const QDomNode first = child.firstChild();
        appendEscaped(first.isText() && first.nextSibling().isNull() ? first.nodeValue() : child.text());
        m_html.append(QLatin1String("</td></tr>"));
    }
    m_html.append(QLatin1String("<tr/>"));
}

void SummaryHtml::appendGeneralSettings(const QDomElement& element)
{
    m_html.append(QLatin1String("<tr><td width=\"10%\"/><td width =\"50%\">General Settings</td></tr>"));
    appendSession(element);
}

void SummaryHtml::appendProxySettings(const QDomElement& element)
{
    m_html.append(QLatin1String("<tr><td width=\"10%\"/><td width =\"50%\">Proxy</td></tr>"));
    appendSession(element);
}

void SummaryHtml::appendLabel(const QString& tag)
{
    auto label = m_labels.find(tag);
    if (label == m_labels.end())
        label = m_labels.insert(tag, m_config.sectionAlias(tag).toHtmlEscaped());
    m_html.append(label.value());
}

void SummaryHtml::appendEscaped(const QString& text)
{
    const QChar* const begin = text.constData();
    const QChar* const end = begin + text.size();
    const QChar* run = begin;
    for (const QChar* c = begin; c != end; ++c) {
        QLatin1String entity;
        switch (c->unicode()) {
        case '<':
            entity = QLatin1String("&lt;");
            break;
        case '>':
            entity = QLatin1String("&gt;");
            break;
        case '&':
            entity = QLatin1String("&amp;");
            break;
        case '"':
            entity = QLatin1String("&quot;");
            break;
        default:
            continue;
        }
        m_html.append(run, int(c - run));
        m_html.append(entity);
        run = c + 1;
    }
    m_html.append(run, int(end - run));
}
