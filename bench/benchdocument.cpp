#include "benchdocument.h"

#include <QString>

namespace {
QByteArray element(int depth, const char* name, const QByteArray& text)
{
    return QByteArray(depth, ' ') + '<' + name + '>' + text + "</" + name + ">\n";
}

QByteArray sessionBody(const QByteArray& type, int index)
{
    const QByteArray number = QByteArray::number(index);
    const QByteArray host = "10." + QByteArray::number(index / 65536 % 256) + '.'
        + QByteArray::number(index / 256 % 256) + '.' + QByteArray::number(index % 256);
    QByteArray body = element(3, "name", type + " host " + number);
    if (type == "parlix") {
        body += element(3, "region", "Europe");
        body += element(3, "autostart", index % 7 == 0 ? "true" : "false");
        body += element(3, "address", host);
        body += element(3, "emulation", "vt220");
        body += element(3, "local_port", QByteArray::number(1024 + index % 1000));
        body += element(3, "port", "23");
        body += element(3, "transport", "telnet");
        return body;
    }
    body += element(3, "autostart", index % 7 == 0 ? "true" : "false");
    if (type == "browser")
        return body + element(3, "url", "https://intranet.example/app/" + number);
    body += element(3, "address", host);
    if (type == "ica") {
        body += "   <proxy>\n" + element(4, "enable", index % 2 == 0 ? "true" : "false")
            + element(4, "address", "proxy.example") + element(4, "port", "3128") + "   </proxy>\n";
    }
    return body;
}
} // namespace

const QStringList& BenchDocument::connectionTypes()
{
    static const QStringList types { QStringLiteral("rdp"), QStringLiteral("ica"), QStringLiteral("parlix"),
                                     QStringLiteral("browser"), QStringLiteral("vmware") };
    return types;
}

QByteArray BenchDocument::generate(int sessions)
{
    QByteArray document = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                          "<zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\">\n"
                          " <keyboard>\n  <layout>Norway</layout>\n </keyboard>\n"
                          " <sound>\n  <volume>60</volume>\n  <mute>false</mute>\n </sound>\n";
    const QStringList& types = connectionTypes();
    for (int t = 0; t < types.size(); ++t) {
        const QByteArray type = types.at(t).toLatin1();
        document += " <" + type + ">\n";
        if (type == "browser") {
            document += "  <general_settings>\n   <proxy>\n" + element(4, "enable", "false")
                + element(4, "address", QByteArray()) + element(4, "port", "0")
                + "   </proxy>\n  </general_settings>\n";
        }
        for (int i = t; i < sessions; i += types.size()) {
            // Ids as the wizard makes them, but reproducible from run to run.
            const QByteArray id = QStringLiteral("{%1-0000-4000-8000-%2}")
                                      .arg(i, 8, 16, QLatin1Char('0'))
                                      .arg(qulonglong(i) * 2654435761ULL % 0x1000000000000ULL, 12, 16, QLatin1Char('0'))
                                      .toLatin1();
            document += "  <session id=\"" + id + "\">\n" + sessionBody(type, i) + "  </session>\n";
        }
        document += " </" + type + ">\n";
    }
    document += " <desktop>\n  <kiosk_mode>false</kiosk_mode>\n </desktop>\n</zelkon>\n";
    return document;
}
