#!/usr/bin/env python3
"""The far end of a serial line for tests of programs that run under Wine.

ferneende.py LINK: keeps a symbolic link at LINK to a pseudo terminal and does what the near end asks for, a line
each: "begin" forgets what was asked before and answers "ready"; "say HEX" sends bytes back; "later MS HEX" does after
so many milliseconds; "flood N" sends N bytes; "hangup MS" takes the line away after so many milliseconds and puts
another in its place; "deaf MS" answers "deaf" and reads nothing for so long. Ends with its standard input.
"""
import os
import select
import sys
import time
import tty


class Leitung:
    def __init__(self, link):
        self.link = link
        self.rest = b""
        self.geplant = []
        self.taub_bis = 0
        self.oeffne()

    def oeffne(self):
        self.fern, self.nah = os.openpty()
        tty.setraw(self.nah)
        neu = self.link + ".new"
        os.symlink(os.ttyname(self.nah), neu)
        os.replace(neu, self.link)

    def haenge_auf(self):
        os.close(self.nah)
        os.close(self.fern)
        self.rest = b""
        self.oeffne()

    def plane(self, millisekunden, tat):
        self.geplant.append((time.monotonic() + millisekunden / 1000, tat))

    def befolge(self, zeile):
        worte = zeile.decode("ascii", "replace").split()
        match worte:
            case ["begin"]:
                self.geplant.clear()
                os.write(self.fern, b"ready")
            case ["say", hexzahlen]:
                os.write(self.fern, bytes.fromhex(hexzahlen))
            case ["later", ms, hexzahlen]:
                self.plane(int(ms), lambda: os.write(self.fern, bytes.fromhex(hexzahlen)))
            case ["flood", anzahl]:
                self.flute(int(anzahl))
            case ["deaf", ms]:
                self.taub_bis = time.monotonic() + int(ms) / 1000
                self.plane(int(ms), lambda: None)
                os.write(self.fern, b"deaf")
            case ["hangup", ms]:
                self.plane(int(ms), self.haenge_auf)

    def flute(self, anzahl):
        stueck = min(anzahl, 1024)
        if stueck > 0:
            os.write(self.fern, b"x" * stueck)
            self.plane(2, lambda: self.flute(anzahl - stueck))

    def tue_geplantes(self):
        jetzt = time.monotonic()
        faellig = [tat for wann, tat in self.geplant if wann <= jetzt]
        self.geplant = [(wann, tat) for wann, tat in self.geplant if wann > jetzt]
        for tat in faellig:
            tat()

    def laufe(self):
        while True:
            frist = min((wann - time.monotonic() for wann, _ in self.geplant), default=1)
            hoert = [] if time.monotonic() < self.taub_bis else [self.fern]
            lesbar, _, _ = select.select([*hoert, sys.stdin], [], [], max(frist, 0))
            self.tue_geplantes()
            if sys.stdin in lesbar and not os.read(0, 100):
                return
            if self.fern in lesbar:
                *zeilen, self.rest = (self.rest + os.read(self.fern, 4096)).split(b"\n")
                for zeile in zeilen:
                    self.befolge(zeile)


Leitung(sys.argv[1]).laufe()
