#include "documentpath.h"

#include "config/configfile.h"

QStringList DocumentPath::split(const QString& path)
{
    const QStringList names = path.split(QLatin1Char('/'));
    for (const QString& name : names) {
        if (name.isEmpty())
            return {};
    }
    return names;
}

QDomElement DocumentPath::find(const QDomElement& parent, const QStringList& path)
{
    QDomElement element = parent;
    for (const QString& name : path) {
        element = element.firstChildElement(name);
        if (element.isNull())
            break;
    }
    return element;
}

bool DocumentPath::setValue(ConfigFile* config, QDomElement parent, const QStringList& path, const QString& value)
{
    QDomElement element = find(parent, path);
    if (!element.isNull() && !element.firstChildElement().isNull())
        return false;
    if (element.isNull()) {
        element = parent;
        for (const QString& name : path) {
            QDomElement child = element.firstChildElement(name);
            if (child.isNull())
                child = element.appendChild(config->createElement(name)).toElement();
            element = child;
        }
    }
    // An element read back as <key/> has no text node to change; give it one.
    while (!element.firstChild().isNull())
        element.removeChild(element.firstChild());
    element.appendChild(config->QDomDocument::createTextNode(value));
    return true;
}
