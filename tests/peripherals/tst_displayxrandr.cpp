#include "peripherals/displayframe.h"
#include "peripherals/xrandrscreenmode.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>
#include <dlfcn.h>

namespace {
// Just enough of Xlib and RandR 1.2 to give a virtual screen a mode with a refresh rate.
struct Display;
using Window = unsigned long;
struct XRRModeInfo
{
    unsigned long id;
    unsigned int width;
    unsigned int height;
    unsigned long dotClock;
    unsigned int hSyncStart;
    unsigned int hSyncEnd;
    unsigned int hTotal;
    unsigned int hSkew;
    unsigned int vSyncStart;
    unsigned int vSyncEnd;
    unsigned int vTotal;
    char* name;
    unsigned int nameLength;
    unsigned long modeFlags;
};
struct XRRScreenResources
{
    unsigned long timestamp;
    unsigned long configTimestamp;
    int ncrtc;
    unsigned long* crtcs;
    int noutput;
    unsigned long* outputs;
    int nmode;
    XRRModeInfo* modes;
};

template <typename Function> Function symbol(void* library, const char* name)
{
    return reinterpret_cast<Function>(dlsym(library, name));
}

// Gives the screen of a virtual X server a 1024x768 mode at 60 Hz (65 MHz over 1344 x 806)
// for as long as it lives: the server drops a client's modes when the client disconnects.
class ModeAt60Hz
{
public:
    ModeAt60Hz() = default;
    ~ModeAt60Hz()
    {
        if (m_display)
            m_closeDisplay(m_display);
    }
    ModeAt60Hz(const ModeAt60Hz&) = delete;
    ModeAt60Hz& operator=(const ModeAt60Hz&) = delete;

    bool set(const QByteArray& displayName)
    {
        void* x11 = dlopen("libX11.so.6", RTLD_NOW);
        void* xrandr = dlopen("libXrandr.so.2", RTLD_NOW);
        if (!x11 || !xrandr)
            return false;
        auto openDisplay = symbol<Display* (*)(const char*)>(x11, "XOpenDisplay");
        m_closeDisplay = symbol<int (*)(Display*)>(x11, "XCloseDisplay");
        auto defaultScreen = symbol<int (*)(Display*)>(x11, "XDefaultScreen");
        auto rootWindow = symbol<Window (*)(Display*, int)>(x11, "XRootWindow");
        auto sync = symbol<int (*)(Display*, int)>(x11, "XSync");
        auto getResources = symbol<XRRScreenResources* (*)(Display*, Window)>(xrandr, "XRRGetScreenResources");
        auto freeResources = symbol<void (*)(XRRScreenResources*)>(xrandr, "XRRFreeScreenResources");
        auto createMode = symbol<unsigned long (*)(Display*, Window, XRRModeInfo*)>(xrandr, "XRRCreateMode");
        auto addOutputMode = symbol<void (*)(Display*, unsigned long, unsigned long)>(xrandr, "XRRAddOutputMode");
        auto setCrtcConfig
            = symbol<int (*)(Display*, XRRScreenResources*, unsigned long, unsigned long, int, int, unsigned long,
                             unsigned short, unsigned long*, int)>(xrandr, "XRRSetCrtcConfig");
        m_display = openDisplay(displayName.constData());
        if (!m_display)
            return false;
        const Window root = rootWindow(m_display, defaultScreen(m_display));
        bool done = false;
        if (XRRScreenResources* resources = getResources(m_display, root)) {
            if (resources->ncrtc > 0 && resources->noutput > 0) {
                char name[] = "1024x768_60";
                XRRModeInfo info { 0, 1024, 768, 65000000, 1048, 1184, 1344, 0, 771, 777, 806, name, 11, 0 };
                const unsigned long mode = createMode(m_display, root, &info);
                addOutputMode(m_display, resources->outputs[0], mode);
                done = setCrtcConfig(m_display, resources, resources->crtcs[0], 0, 0, 0, mode, 1, resources->outputs, 1)
                    == 0;
                sync(m_display, 0);
            }
            freeResources(resources);
        }
        return done;
    }

private:
    Display* m_display = nullptr;
    int (*m_closeDisplay)(Display*) = nullptr;
};
} // namespace

// The current screen mode through run-time loaded Xlib and libXrandr.
class TestDisplayXrandr : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase();
    void failsQuietlyWithoutAServer();
    void readsTheModeOfALiveServer();

private:
    QProcess m_xvfb;
};

void TestDisplayXrandr::cleanupTestCase()
{
    // Terminated rather than killed, so that the server removes its socket and lock file.
    if (m_xvfb.state() != QProcess::NotRunning) {
        m_xvfb.terminate();
        if (!m_xvfb.waitForFinished(5000)) {
            m_xvfb.kill();
            m_xvfb.waitForFinished(5000);
        }
    }
}

void TestDisplayXrandr::failsQuietlyWithoutAServer()
{
    int width = -1;
    int height = -1;
    int rate = -1;
    QVERIFY(!DisplayFrame::getCurrentSettings(nullptr, &height, &rate, nullptr));
    QVERIFY(!DisplayFrame::getCurrentSettings(&width, nullptr, &rate, nullptr));
    QVERIFY(!DisplayFrame::getCurrentSettings(&width, &height, nullptr, nullptr));

    // Only a local socket is tried for this name, and no server listens there.
    if (QFile::exists(QStringLiteral("/tmp/.X11-unix/X4321")))
        QSKIP("an X server runs on display :4321");
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!XrandrScreenMode::query("unix/:4321", &width, &height, &rate));
    QVERIFY(timer.elapsed() < 5000);
    QCOMPARE(width, -1);
    QCOMPARE(height, -1);
    QCOMPARE(rate, -1);
}

void TestDisplayXrandr::readsTheModeOfALiveServer()
{
    if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty())
        QSKIP("Xvfb is not installed; the live query needs a virtual X server");
    void* xrandr = dlopen("libXrandr.so.2", RTLD_LAZY);
    if (!xrandr)
        QSKIP("libXrandr.so.2 is not installed; the query needs it at run time");
    dlclose(xrandr);

    // Xvfb picks a free display and writes its number once it accepts connections. Without
    // -noreset it would reset whenever its last client leaves, as each query here does, and
    // refuse connections while it does: on a busy machine the next query came too early.
    m_xvfb.start(QStringLiteral("Xvfb"),
                 { "-displayfd", "1", "-noreset", "-nolisten", "tcp", "-screen", "0", "1280x1024x24" });
    if (!m_xvfb.waitForStarted(5000) || !m_xvfb.waitForReadyRead(15000))
        QSKIP("Xvfb could not be started");
    const QByteArray displayName = ':' + m_xvfb.readAllStandardOutput().trimmed();

    // A virtual screen's own mode has no refresh rate, which does not count as a mode.
    int width = -1;
    int height = -1;
    int rate = -1;
    int rotation = -1;
    QVERIFY(!XrandrScreenMode::query(displayName, &width, &height, &rate, &rotation));
    QCOMPARE(width, -1);
    QCOMPARE(rate, -1);

    ModeAt60Hz mode;
    QVERIFY(mode.set(displayName));
    QVERIFY(XrandrScreenMode::query(displayName, &width, &height, &rate, &rotation));
    QCOMPARE(width, 1024);
    QCOMPARE(height, 768);
    QCOMPARE(rate, 60);
    QCOMPARE(rotation, 1); // not rotated
    // Loading and unloading the libraries again works as the first time did.
    QVERIFY(XrandrScreenMode::query(displayName, &width, &height, &rate));
}

QTEST_MAIN(TestDisplayXrandr)
#include "tst_displayxrandr.moc"
