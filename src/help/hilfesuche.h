#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace varnoth {

/// A page as the search sees it: without markup.
struct Seitentext {
    QString seite; ///< name of the page
    QString titel;
    QString text;
};

/// A page that was found.
struct Fundstelle {
    QString seite; ///< name of the page
    QString titel;
    QString auszug; ///< the words around the first find, in one line

    bool operator==(const Fundstelle&) const = default;
};

/// The single words of what was typed, each once.
QStringList Suchworte(const QString& eingabe);

/// The pages that hold all the words, in title or text, upper and lower case alike; a word may be part of a
/// longer one. Pages whose title holds a word come first, otherwise the order stays. No words find nothing.
QList<Fundstelle> Suche(const QList<Seitentext>& seiten, const QStringList& worte);

} // namespace varnoth
