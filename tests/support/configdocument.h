#pragma once

#include <QByteArray>

// A configuration file as the wizard writes it, holding the given sections.
inline QByteArray configDocument(const QByteArray& sections)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<zelkon version=\"1.0\" creator=\"zelkon\" "
           "creator_version=\"2.0\">\n"
        + sections + "</zelkon>\n";
}
