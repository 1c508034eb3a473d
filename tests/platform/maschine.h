#pragma once

#include "portliste.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include <pty.h>
#include <unistd.h>

namespace varnoth::pruefung {

/// The folders in which a system tells of its devices, with pseudo terminals for the devices themselves.
class Maschine {
public:
    Maschine() {
        char name[128];
        EXPECT_EQ(openpty(&fern, &nah, name, nullptr, nullptr), 0);
        terminal = name;
        for (const std::filesystem::path& eigener : {Sys() / "class/tty", Dev() / "serial/by-id",
                                                     Dev() / "serial/by-path", Proc(), wurzel / "watched"})
            std::filesystem::create_directories(eigener);
    }
    Maschine(const Maschine&) = delete;
    Maschine& operator=(const Maschine&) = delete;
    ~Maschine() {
        close(fern);
        close(nah);
    }

    Portwurzeln Wurzeln() const {
        return {.dev = Dev().string(), .sys = Sys().string(), .proc = Proc().string()};
    }
    /// A port of the board; type 0 stands for one without a UART.
    void SteckeUart(const std::string& name, int art) const {
        SteckeTerminal(name, Sys() / "devices/board" / name);
        Schreibe(Sys() / "class/tty" / name / "type", std::to_string(art));
    }
    /// A USB adapter whose driver has a latency timer, unless it is 0.
    void SteckeUsb(const std::string& name, const std::string& seriennummer, int verzoegerung = 0) const {
        const std::filesystem::path usb = Sys() / "devices/usb1" / ("1-" + name);
        const std::filesystem::path geraet = usb / "1-1:1.0" / name;
        SteckeTerminal(name, geraet);
        Schreibe(usb / "idVendor", "0403");
        Schreibe(usb / "product", "FT232R USB UART");
        Schreibe(usb / "manufacturer", "FTDI");
        Schreibe(usb / "serial", seriennummer);
        if (verzoegerung > 0)
            Schreibe(geraet / "latency_timer", std::to_string(verzoegerung));
    }
    void ZieheAb(const std::string& name) const {
        std::filesystem::remove_all(Sys() / "class/tty" / name);
        std::filesystem::remove(Dev() / name);
    }
    /// A terminal without hardware.
    void LegeVirtuellesAn(const std::string& name) const {
        std::filesystem::create_directories(Sys() / "class/tty" / name);
        std::filesystem::create_symlink(terminal, Dev() / name);
    }
    /// A process of the scripted list that has a path open.
    void LegeProzessAn(const std::string& nummer, const std::string& name, const std::string& offen) const {
        std::filesystem::create_directories(Proc() / nummer / "fd");
        Schreibe(Proc() / nummer / "comm", name);
        std::filesystem::create_symlink(offen, Proc() / nummer / "fd" / "3");
    }

    static void Schreibe(const std::filesystem::path& datei, const std::string& text) {
        std::filesystem::create_directories(datei.parent_path());
        std::ofstream(datei) << text << '\n';
    }

    std::filesystem::path Dev() const { return wurzel / "dev"; }
    std::filesystem::path Sys() const { return wurzel / "sys"; }
    std::filesystem::path Proc() const { return wurzel / "proc"; }
    std::filesystem::path Beobachteter() const { return wurzel / "watched"; }
    std::string Geraet(const std::string& name) const { return (Dev() / name).string(); }

    std::string terminal; ///< the pseudo terminal behind every device
    int fern = -1;
    int nah = -1;

private:
    void SteckeTerminal(const std::string& name, const std::filesystem::path& geraet) const {
        std::filesystem::create_directories(geraet);
        std::filesystem::create_directories(Sys() / "class/tty" / name);
        std::filesystem::create_symlink(geraet, Sys() / "class/tty" / name / "device");
        std::filesystem::create_symlink(terminal, Dev() / name);
    }

    QTemporaryDir ordner;
    std::filesystem::path wurzel{ordner.path().toStdString()};
};

} // namespace varnoth::pruefung
