#include "fensterwaechter.h"

#include "statistik.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <poll.h>

namespace varnoth::bench {

namespace {

/// A window may be gone when it is asked for; that must not end the bench.
int UebergeheFehler(Display* /*anzeige*/, XErrorEvent* /*fehler*/) {
    return 0;
}

std::string Titel(Display* anzeige, Window fenster) {
    char* name = nullptr;
    if (XFetchName(anzeige, fenster, &name) == 0 || name == nullptr)
        return {};
    std::string titel = name;
    XFree(name);
    return titel;
}

bool IstGemalt(Display* anzeige, Window fenster) {
    constexpr int Ecke = 3;
    XImage* bild = XGetImage(anzeige, fenster, Ecke, Ecke, 1, 1, AllPlanes, ZPixmap);
    if (bild == nullptr)
        return false;
    const bool gemalt = (XGetPixel(bild, 0, 0) & 0xFFFFFF) != 0;
    XDestroyImage(bild);
    return gemalt;
}

} // namespace

struct Fensterwaechter::Verbindung {
    Display* anzeige;

    /// The window with the title that has appeared since the last call, 0 if none has.
    Window Erschienenes(const std::string& titel) const {
        Window fenster = 0;
        for (XEvent ereignis; XPending(anzeige) > 0;) {
            XNextEvent(anzeige, &ereignis);
            if (ereignis.type == MapNotify && Titel(anzeige, ereignis.xmap.window) == titel)
                fenster = ereignis.xmap.window;
        }
        return fenster;
    }
};

Fensterwaechter::Fensterwaechter() {
    Display* anzeige = XOpenDisplay(nullptr);
    if (anzeige == nullptr)
        return;
    XSetErrorHandler(UebergeheFehler);
    XSelectInput(anzeige, DefaultRootWindow(anzeige), SubstructureNotifyMask);
    XSync(anzeige, False);
    verbindung = std::make_unique<Verbindung>(anzeige);
}

Fensterwaechter::~Fensterwaechter() {
    if (verbindung)
        XCloseDisplay(verbindung->anzeige);
}

bool Fensterwaechter::WarteAuf(const std::string& titel) {
    constexpr double Frist = 10;
    constexpr int Takt = 1; // milliseconds
    Window fenster = 0;
    for (const double ende = Uhrzeit() + Frist; Uhrzeit() < ende;) {
        if (const Window neues = verbindung->Erschienenes(titel); neues != 0)
            fenster = neues;
        if (fenster != 0 && IstGemalt(verbindung->anzeige, fenster))
            return true;
        pollfd anschluss{ConnectionNumber(verbindung->anzeige), POLLIN, 0};
        ::poll(&anschluss, 1, Takt);
    }
    return false;
}

} // namespace varnoth::bench
