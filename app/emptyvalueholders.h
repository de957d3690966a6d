#pragma once

#include <QDomElement>
#include <QDomText>
#include <QList>

/*
 * The document layer changes a value only through the value element's text node, and an
 * element read back from a file as <key/> has none: a value the administrator types for
 * such a key would silently never reach the file. While the pages write, every empty value
 * element holds an empty text node to be changed; the holders still empty afterwards are
 * taken out again, so untouched values are written exactly as they were read.
 */
class EmptyValueHolders
{
public:
    // Values are the elements below the sections; the sections themselves stay as they are.
    explicit EmptyValueHolders(const QDomElement& root);
    EmptyValueHolders(const EmptyValueHolders&) = delete;
    EmptyValueHolders& operator=(const EmptyValueHolders&) = delete;

    // Removes the holders nobody wrote into.
    void removeUnused();

private:
    QList<QDomText> m_holders;
};
