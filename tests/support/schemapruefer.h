#pragma once

#include <QJsonObject>
#include <QJsonValue>

#include <string>

namespace varnoth::pruefung {

/// Checks values against a description in JSON Schema, as far as this project's own descriptions go: type,
/// const, enum, required, properties, additionalProperties, items, minItems, maxItems, minimum, maximum,
/// pattern, oneOf and $ref within the description. A word that it does not know is an error, so that none is
/// passed over.
class Schemapruefer {
public:
    explicit Schemapruefer(QJsonObject schema);

    /// Where and why a value does not fit; empty when it does.
    std::string Mangel(const QJsonValue& wert) const;

private:
    std::string Pruefe(const QJsonValue& wert, const QJsonObject& regel, const std::string& ort) const;
    std::string PruefeOneOf(const QJsonValue& wert, const QJsonValue& regel, const std::string& ort) const;
    std::string PruefeObjekt(const QJsonValue& wert, const QJsonObject& regel, const std::string& ort) const;
    std::string PruefeListe(const QJsonValue& wert, const QJsonObject& regel, const std::string& ort) const;
    QJsonObject Ziel(const QString& verweis) const;

    QJsonObject wurzel;
};

/// The description in a file; throws std::runtime_error where there is none.
Schemapruefer LiesSchema(const char* pfad);

} // namespace varnoth::pruefung
