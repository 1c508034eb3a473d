#pragma once

#include <QString>

namespace varnoth {

/// The Qt libraries that run, and those the program was built with, in the current language.
QString Qtzeile();
/// The compiler of this program, in the current language.
QString Compilerzeile();

/// What whoever helps a user wants to know first, a line each, in the current language: program, Qt,
/// compiler, system, screens, language, where settings and backups lie. No password and nothing of the
/// configuration stands in it.
/// @param einstellungsdatei where this run keeps its settings
QString Supporttext(const QString& einstellungsdatei);

} // namespace varnoth
