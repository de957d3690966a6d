#pragma once

#include "tavlohost_export.h"

#include <QObject>
#include <QStringList>

/*
 * The host's one global platform object: which thin-client platform the configuration
 * being edited targets, and whether the wizard runs standalone (on an administrator's
 * PC preparing files) rather than on the device itself.
 *
 * The selectable targets, in the order of list() and of the enum: "Lunvex", "WES",
 * "WES7", "CE". A fresh object targets Lunvex and is not standalone. platformChange()
 * is emitted whenever the target or the standalone mode actually changes, so pages can
 * re-run their platform rules.
 */
class TAVLOHOST_EXPORT Platform : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Platform)

public:
    enum Target { Lunvex = 0, Wes, Wes7, Ce };
    Q_ENUM(Target)

    static Platform* instance();

    static bool isLunvex();
    static bool isWes();
    static bool isWes7();
    static bool isCe();
    static bool isStandalone();
    static QStringList list();

    Target target() const { return m_target; }
    void setTarget(Target target);
    bool standalone() const { return m_standalone; }
    void setStandalone(bool standalone);

public slots:
    // The index of the chosen entry of list(); out-of-range indexes are ignored.
    void selectionChanged(int index);

signals:
    void platformChange();

private:
    Platform() = default;

    Target m_target = Lunvex;
    bool m_standalone = false;
};
