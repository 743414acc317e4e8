// SPDX-License-Identifier: MIT
#include "runtime/error.h"

#include <algorithm>

namespace zqn {

namespace {

struct Words {
  std::int32_t number;
  StringView text;
};

constexpr Words words[] = {
    {error::InvalidProcedureCall, u"Ungültiger Prozeduraufruf oder ungültiges Argument"},
    {error::Overflow, u"Überlauf"},
    {error::SubscriptOutOfRange, u"Index außerhalb des gültigen Bereichs"},
    {error::DivisionByZero, u"Division durch Null"},
    {error::TypeMismatch, u"Typen unverträglich"},
    {error::ObjectNotSet, u"Objektvariable oder With-Blockvariable nicht festgelegt"},
    {error::InvalidUseOfNull, u"Unzulässige Verwendung von Null"},
    {error::NoSuchControl, u"Steuerelement-Datenfeldelement ist nicht vorhanden"},
    {error::ObjectUnloaded, u"Objekt wurde entladen"},
    {error::UnableToUnload, u"Entladen in diesem Kontext nicht möglich"},
    {error::InvalidPropertyValue, u"Ungültiger Eigenschaftswert"},
    {error::InvalidPropertyArrayIndex, u"Ungültiger Index für Eigenschaften-Datenfeld"},
    {error::PropertyIsReadOnly, u"Eigenschaft ist schreibgeschützt"},
    {error::FormAlreadyDisplayed,
     u"Formular wird bereits angezeigt; Anzeige als modales Formular nicht möglich"},
    {error::ObjectRequired, u"Objekt erforderlich"},
    {error::CannotCreateObject, u"Komponente kann das Objekt nicht erstellen"},
    {error::NoSuchMember, u"Objekt unterstützt diese Eigenschaft oder Methode nicht"},
    {error::InvalidArgument,
     u"Die Argumente sind vom falschen Typ, liegen außerhalb des gültigen Bereichs oder widersprechen "
     u"einander."},
    {error::NoCurrentRecord,
     u"BOF oder EOF ist True, oder der aktuelle Datensatz ist gelöscht. Der Vorgang braucht einen aktuellen "
     u"Datensatz."},
    {error::IllegalOperation, u"Der Vorgang ist in diesem Zusammenhang nicht zulässig."},
    {error::FeatureNotAvailable, u"Das Objekt oder die Datenbank kann den Vorgang nicht ausführen."},
    {error::ItemNotFound, u"Die Auflistung hat kein Element mit diesem Namen oder dieser Nummer."},
    {error::ObjectNotValid, u"Das Objekt ist nicht mehr gültig."},
    {error::DataConversion, u"Der Wert hat für diesen Vorgang den falschen Typ."},
    {error::ObjectClosed, u"Der Vorgang ist nicht zulässig, wenn das Objekt geschlossen ist."},
    {error::ObjectOpen, u"Der Vorgang ist nicht zulässig, wenn das Objekt geöffnet ist."},
    {error::InvalidConnection, u"Die Verbindung ist geschlossen oder hier nicht gültig."},
    {error::CommandText, u"Die Anweisung enthält Fehler."},
    {error::TableNotFound, u"Die Tabelle ist nicht vorhanden."},
    {error::IntegrityViolation, u"Ein Wert verletzt eine Bedingung der Tabelle oder der Spalte."},
    {error::RowConflict,
     u"Der Datensatz wurde nicht gefunden. Er ist gelöscht oder seit dem Lesen geändert worden."},
    {error::MultipleStep, u"Dem Feld konnte der Wert nicht zugewiesen werden."},
    {error::ProviderDataOverflow, u"Ein Wert ist zu groß oder zu lang für seine Spalte."},
    {error::ConversionFailed, u"Ein Wert konnte nicht umgewandelt werden."},
    {error::NoValueForParameter, u"Für mindestens einen Parameter fehlt ein Wert."},
    {error::PermissionDenied, u"Die Berechtigung fehlt."},
    {error::ProviderTypeMismatch, u"Der Wert passt nicht zum Typ der Spalte."},
    {error::ProviderFailure, u"Unbekannter Fehler"},
};

}  // namespace

String error::description(std::int32_t number) {
  const auto found = std::ranges::find(words, number, &Words::number);
  return found == std::end(words) ? String() : String(found->text);
}

RuntimeError::RuntimeError(std::int32_t number) : RuntimeError(number, error::description(number)) {}

RuntimeError::RuntimeError(std::int32_t number, String description, String source)
    : number_(number),
      description_(std::move(description)),
      source_(std::move(source)),
      what_(std::to_string(number) + ": " + toUtf8(description_)) {}

}  // namespace zqn
