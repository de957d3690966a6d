#include "xrandrscreenmode.h"

#include <dlfcn.h>

namespace {
// The few Xlib and RandR declarations needed, so that building needs no X headers.
struct Display;
struct XErrorEvent;
struct XRRScreenConfiguration;
struct XRRScreenSize
{
    int width;
    int height;
    int mwidth;
    int mheight;
};
using Window = unsigned long;
using Rotation = unsigned short;
using SizeID = unsigned short;
using XErrorHandler = int (*)(Display*, XErrorEvent*);

using XOpenDisplayFn = Display* (*)(const char*);
using XCloseDisplayFn = int (*)(Display*);
using XDefaultScreenFn = int (*)(Display*);
using XRootWindowFn = Window (*)(Display*, int);
using XSetErrorHandlerFn = XErrorHandler (*)(XErrorHandler);

using XRRRotationsFn = Rotation (*)(Display*, int, Rotation*);
using XRRConfigSizesFn = XRRScreenSize* (*)(XRRScreenConfiguration*, int*);
using XRRConfigCurrentConfigurationFn = SizeID (*)(XRRScreenConfiguration*, Rotation*);
using XRRConfigCurrentRateFn = short (*)(XRRScreenConfiguration*);
using XRRGetScreenInfoFn = XRRScreenConfiguration* (*)(Display*, Window);
using XRRFreeScreenConfigInfoFn = void (*)(XRRScreenConfiguration*);

// A library opened for the lifetime of the object.
class SharedLibrary
{
public:
    explicit SharedLibrary(const char* name)
        : m_handle(dlopen(name, RTLD_LAZY))
    {
    }
    ~SharedLibrary()
    {
        if (m_handle)
            dlclose(m_handle);
    }
    SharedLibrary(const SharedLibrary&) = delete;
    SharedLibrary& operator=(const SharedLibrary&) = delete;

    bool isLoaded() const { return m_handle != nullptr; }
    template <typename Function> bool resolve(const char* symbol, Function* function) const
    {
        *function = m_handle ? reinterpret_cast<Function>(dlsym(m_handle, symbol)) : nullptr;
        return *function != nullptr;
    }

private:
    void* m_handle;
};

// Xlib's default handler ends the process on a protocol error; a failed query must not.
int ignoreXError(Display*, XErrorEvent*)
{
    return 0;
}
} // namespace

bool XrandrScreenMode::query(const QByteArray& displayName, int* width, int* height, int* rate, int* rotation)
{
    if (!width || !height || !rate)
        return false;

    // Declared before the RandR library so that it is unloaded last: libXrandr hooks the
    // display's closing, so the display must be closed while both are loaded.
    SharedLibrary x11("libX11.so.6");
    XOpenDisplayFn openDisplay;
    XCloseDisplayFn closeDisplay;
    XDefaultScreenFn defaultScreen;
    XRootWindowFn rootWindow;
    XSetErrorHandlerFn setErrorHandler;
    if (!x11.resolve("XOpenDisplay", &openDisplay) || !x11.resolve("XCloseDisplay", &closeDisplay)
        || !x11.resolve("XDefaultScreen", &defaultScreen) || !x11.resolve("XRootWindow", &rootWindow)
        || !x11.resolve("XSetErrorHandler", &setErrorHandler))
        return false;

    SharedLibrary xrandr("libXrandr.so.2");
    XRRRotationsFn rotations;
    XRRConfigSizesFn configSizes;
    XRRConfigCurrentConfigurationFn currentConfiguration;
    XRRConfigCurrentRateFn currentRate;
    XRRGetScreenInfoFn getScreenInfo;
    XRRFreeScreenConfigInfoFn freeScreenInfo;
    if (!xrandr.resolve("XRRRotations", &rotations) || !xrandr.resolve("XRRConfigSizes", &configSizes)
        || !xrandr.resolve("XRRConfigCurrentConfiguration", &currentConfiguration)
        || !xrandr.resolve("XRRConfigCurrentRate", &currentRate) || !xrandr.resolve("XRRGetScreenInfo", &getScreenInfo)
        || !xrandr.resolve("XRRFreeScreenConfigInfo", &freeScreenInfo))
        return false;

    Display* display = openDisplay(displayName.constData());
    if (!display)
        return false;
    const XErrorHandler previousHandler = setErrorHandler(ignoreXError);

    bool found = false;
    const int screen = defaultScreen(display);
    if (XRRScreenConfiguration* config = getScreenInfo(display, rootWindow(display, screen))) {
        int sizeCount = 0;
        const XRRScreenSize* sizes = configSizes(config, &sizeCount);
        Rotation configRotation = 0;
        const SizeID current = currentConfiguration(config, &configRotation);
        const short currentRefresh = currentRate(config);
        if (sizes && current < sizeCount && currentRefresh >= 1) {
            *width = sizes[current].width;
            *height = sizes[current].height;
            *rate = currentRefresh;
            if (rotation) {
                Rotation currentRotation = 0;
                rotations(display, screen, &currentRotation);
                *rotation = currentRotation;
            }
            found = true;
        }
        freeScreenInfo(config);
    }

    setErrorHandler(previousHandler);
    closeDisplay(display);
    return found;
}
