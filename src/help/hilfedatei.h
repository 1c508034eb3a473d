#pragma once

#include "hilfesuche.h"
#include "inhaltsverzeichnis.h"

#include <QImage>
#include <QUrl>

#include <memory>

namespace varnoth {

/// An open help file: the contents list, the pages, their style sheet and their pictures of one language.
class Hilfedatei {
public:
    /// Opens a help file.
    /// @return nullptr when it is not there, cannot be read or is no help file
    static std::unique_ptr<Hilfedatei> Oeffne(const QString& pfad);
    ~Hilfedatei();
    Hilfedatei(const Hilfedatei&) = delete;
    Hilfedatei& operator=(const Hilfedatei&) = delete;

    /// The pages in the order of the contents; at least one.
    const Inhaltsverzeichnis& Inhalt() const { return inhalt; }
    /// Where a text browser finds a page, or a place on it.
    QUrl Adresse(const QString& seite, const QString& anker = {}) const;
    /// The page as it was written; empty when there is none.
    QString Html(const QString& seite) const;
    bool HatAnker(const QString& seite, const QString& anker) const;
    /// The style sheet for all pages.
    QString Stil() const;
    /// A picture ("frmMain.png"); null when there is none.
    QImage Bild(const QString& name) const;
    /// The pages without markup, in the order of the contents.
    const QList<Seitentext>& Seitentexte() const;

private:
    Hilfedatei(QString dateipfad, QString dateiwurzel);
    QString Lies(const QString& name) const;

    QString pfad;
    QString wurzel; // where its contents stand among the resources
    Inhaltsverzeichnis inhalt;
    mutable QList<Seitentext> seitentexte; // filled when first asked for
};

} // namespace varnoth
