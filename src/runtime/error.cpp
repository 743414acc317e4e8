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
     u"Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another."},
    {error::NoCurrentRecord,
     u"Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
     u"current "
     u"record."},
    {error::IllegalOperation, u"Operation is not allowed in this context."},
    {error::FeatureNotAvailable, u"Object or provider is not able to perform requested operation."},
    {error::ItemNotFound,
     u"Item cannot be found in the collection corresponding to the requested name or ordinal."},
    {error::ObjectNotValid, u"Object is no longer valid."},
    {error::DataConversion, u"Application uses a value of the wrong type for the current operation."},
    {error::ObjectClosed, u"Operation is not allowed when the object is closed."},
    {error::ObjectOpen, u"Operation is not allowed when the object is open."},
    {error::InvalidConnection,
     u"The connection cannot be used to perform this operation. It is either closed or invalid in this "
     u"context."},
    {error::CommandText, u"The command contained one or more errors."},
    {error::TableNotFound, u"The table does not exist."},
    {error::IntegrityViolation, u"A value violated the integrity constraints of a column or table."},
    {error::RowConflict,
     u"Row cannot be located for updating. Some values may have been changed since it was last read."},
    {error::MultipleStep, u"Multiple-step operation generated errors. Check each status value."},
    {error::ProviderDataOverflow, u"A value is out of range or too long for its column."},
    {error::PermissionDenied, u"Permission denied."},
    {error::ProviderTypeMismatch, u"Type mismatch."},
    {error::ProviderFailure, u"Unspecified error"},
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
