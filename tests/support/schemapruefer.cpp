#include "schemapruefer.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>
#include <stdexcept>
#include <utility>

namespace varnoth::pruefung {

namespace {

const QStringList Bekannte{
    "$schema",  "$defs",    "$ref",     "title",   "description", "type",
    "const",    "enum",     "required", "items",   "properties",  "additionalProperties",
    "minItems", "maxItems", "minimum",  "maximum", "pattern",     "oneOf"};

bool IstVomTyp(const QJsonValue& wert, const QString& typ) {
    if (typ == "integer")
        return wert.isDouble() && std::floor(wert.toDouble()) == wert.toDouble();
    return (typ == "null" && wert.isNull()) || (typ == "boolean" && wert.isBool()) ||
           (typ == "string" && wert.isString()) || (typ == "array" && wert.isArray()) ||
           (typ == "object" && wert.isObject()) || (typ == "number" && wert.isDouble());
}

bool HatTyp(const QJsonValue& wert, const QJsonValue& regel) {
    if (regel.isString())
        return IstVomTyp(wert, regel.toString());
    for (const QJsonValue typ : regel.toArray())
        if (IstVomTyp(wert, typ.toString()))
            return true;
    return false;
}

bool PasstZahl(const QJsonValue& wert, const QJsonObject& regel) {
    return !wert.isDouble() || (wert.toDouble() >= regel.value("minimum").toDouble(-HUGE_VAL) &&
                                wert.toDouble() <= regel.value("maximum").toDouble(HUGE_VAL));
}

bool PasstText(const QJsonValue& wert, const QJsonObject& regel) {
    return !wert.isString() || !regel.contains("pattern") ||
           QRegularExpression(regel.value("pattern").toString()).match(wert.toString()).hasMatch();
}

std::string Text(const QJsonValue& wert) {
    return QJsonDocument(QJsonArray{wert}).toJson(QJsonDocument::Compact).left(200).toStdString();
}

} // namespace

Schemapruefer::Schemapruefer(QJsonObject schema) : wurzel(std::move(schema)) {}

std::string Schemapruefer::Mangel(const QJsonValue& wert) const {
    return Pruefe(wert, wurzel, "$");
}

QJsonObject Schemapruefer::Ziel(const QString& verweis) const {
    const QString name = verweis.mid(QString("#/$defs/").size());
    const QJsonObject alle = wurzel.value("$defs").toObject();
    if (!verweis.startsWith("#/$defs/") || !alle.contains(name))
        throw std::runtime_error("no description " + verweis.toStdString());
    return alle.value(name).toObject();
}

std::string Schemapruefer::Pruefe(const QJsonValue& wert, const QJsonObject& regel,
                                  const std::string& ort) const {
    for (const QString& wort : regel.keys())
        if (!Bekannte.contains(wort))
            throw std::runtime_error("the checker does not know " + wort.toStdString());
    if (regel.contains("$ref"))
        return Pruefe(wert, Ziel(regel.value("$ref").toString()), ort);
    if (regel.contains("oneOf"))
        return PruefeOneOf(wert, regel.value("oneOf"), ort);
    if (regel.contains("type") && !HatTyp(wert, regel.value("type")))
        return ort + ": is no " + Text(regel.value("type")) + ": " + Text(wert);
    if (regel.contains("const") && wert != regel.value("const"))
        return ort + ": is not " + Text(regel.value("const"));
    if (regel.contains("enum") && !regel.value("enum").toArray().contains(wert))
        return ort + ": is none of " + Text(regel.value("enum"));
    if (!PasstZahl(wert, regel) || !PasstText(wert, regel))
        return ort + ": " + Text(wert) + " is not allowed";
    const std::string mangel = PruefeObjekt(wert, regel, ort);
    return mangel.empty() ? PruefeListe(wert, regel, ort) : mangel;
}

std::string Schemapruefer::PruefeOneOf(const QJsonValue& wert, const QJsonValue& regel,
                                       const std::string& ort) const {
    int passende = 0;
    std::string alle;
    for (const QJsonValue eine : regel.toArray()) {
        const std::string mangel = Pruefe(wert, eine.toObject(), ort);
        passende += mangel.empty() ? 1 : 0;
        alle += mangel + "\n";
    }
    return passende == 1 ? std::string()
                         : ort + ": fits " + std::to_string(passende) + " descriptions\n" + alle;
}

std::string Schemapruefer::PruefeObjekt(const QJsonValue& wert, const QJsonObject& regel,
                                        const std::string& ort) const {
    if (!wert.isObject())
        return {};
    const QJsonObject objekt = wert.toObject();
    const QJsonObject felder = regel.value("properties").toObject();
    for (const QJsonValue name : regel.value("required").toArray())
        if (!objekt.contains(name.toString()))
            return ort + ": has no " + name.toString().toStdString();
    for (const QString& name : objekt.keys()) {
        if (!felder.contains(name) && !regel.value("additionalProperties").toBool(true))
            return ort + ": has a field " + name.toStdString();
        std::string mangel =
            Pruefe(objekt.value(name), felder.value(name).toObject(), ort + "." + name.toStdString());
        if (!mangel.empty())
            return mangel;
    }
    return {};
}

std::string Schemapruefer::PruefeListe(const QJsonValue& wert, const QJsonObject& regel,
                                       const std::string& ort) const {
    if (!wert.isArray())
        return {};
    const QJsonArray liste = wert.toArray();
    if (liste.size() < regel.value("minItems").toInt(0) ||
        liste.size() > regel.value("maxItems").toInt(1 << 30))
        return ort + ": has " + std::to_string(liste.size()) + " elements";
    for (int i = 0; i < liste.size(); ++i) {
        std::string mangel =
            Pruefe(liste[i], regel.value("items").toObject(), ort + "[" + std::to_string(i) + "]");
        if (!mangel.empty())
            return mangel;
    }
    return {};
}

Schemapruefer LiesSchema(const char* pfad) {
    QFile datei(pfad);
    const QJsonDocument dokument =
        datei.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(datei.readAll()) : QJsonDocument();
    if (!dokument.isObject())
        throw std::runtime_error(std::string("no description in ") + pfad);
    return Schemapruefer(dokument.object());
}

} // namespace varnoth::pruefung
