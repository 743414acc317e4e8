// SPDX-License-Identifier: MIT
#include "frontend/kinds.h"

#include <algorithm>
#include <array>

#include "definitions/buchungskreise.h"
#include "definitions/coded_catalogues.h"
#include "definitions/entry_schemes.h"
#include "definitions/group_catalogues.h"
#include "definitions/laendernamen.h"
#include "definitions/payment_types.h"
#include "definitions/shipping_types.h"
#include "definitions/zahlungsbedingungen.h"
#include "frontend/enumerations.h"
#include "frontend/show_steps.h"

namespace zqn {

namespace {

using enum KindSubject;

/// A form of the kind's own: its name, how it is made, and its road through Show.
struct OwnForm {
  const char16_t* name = u"frmDialog";
  std::unique_ptr<Form> (*make)() = nullptr;
  ShowSteps::Road show = &ShowSteps::generic;
};
constexpr OwnForm noForm{};

/// The definition class of the kind on the generic form.
struct Definition {
  const char16_t* name = u"";
  std::unique_ptr<clsBasisDialog> (*make)() = nullptr;
};
constexpr Definition noDefinition{};

template <class F>
consteval OwnForm own(const char16_t* name, ShowSteps::Road show) {
  return {name, []() -> std::unique_ptr<Form> { return std::make_unique<F>(); }, show};
}

template <class C>
consteval Definition definition(const char16_t* name) {
  return {name, []() -> std::unique_ptr<clsBasisDialog> { return std::make_unique<C>(); }};
}

/// Where lists of dialogs have it, and under which title.
struct Listed {
  KindSubject subject;
  int place;
  const char16_t* title;
};

/// What the elements of Param and the result mean.
struct Passed {
  const char16_t* param;
  const char16_t* result;
};
constexpr Passed key{u"Schlüssel", u"Schlüssel"};

/// All that there is to say about a kind.
struct Kind {
  KindInfo info;
  OwnForm form;
  Definition definition;
};

consteval Kind row(std::int32_t number, const char16_t* constant, Listed listed, Passed passed, OwnForm form,
                   Definition definition, const char16_t* tables) {
  const KindServer server = form.make ? KindServer::Dedicated : KindServer::Generic;
  return {{.number = number,
           .constant = constant,
           .server = server,
           .form = form.name,
           .definition = definition.name,
           .tables = tables,
           .subject = listed.subject,
           .place = listed.place,
           .title = listed.title,
           .param = passed.param,
           .result = passed.result},
          form,
          definition};
}

// Number and constant; subject, place and title; Param and result; form and definition class; tables.
// clang-format off
constexpr Kind kinds[] = {
    row(1, u"zqnCommonDialogZahlungsarten", {Payment, 2, u"Zahlungsarten Verkauf"}, key,
        own<frmZahlungsarten>(u"frmZahlungsarten", &ShowSteps::paymentTypes<false>),
        definition<clsZahlungsart>(u"clsZahlungsart"), u"Zahlungsarten,Textbausteine,Zahlungsbedingungen"),
    row(2, u"zqnCommonDialogZahlungsartenEK", {Payment, 3, u"Zahlungsarten Einkauf"}, key,
        own<frmZahlungsarten>(u"frmZahlungsarten", &ShowSteps::paymentTypes<true>),
        definition<clsZahlungsartEk>(u"clsZahlungsartEk"),
        u"ZahlungsartenEK,Textbausteine,Zahlungsbedingungen"),
    row(3, u"zqnCommonDialogZahlungsbedingungen", {Payment, 1, u"Zahlungsbedingungen"}, key,
        noForm, definition<clsZahlungsbedingungen>(u"clsZahlungsbedingungen"), u"Zahlungsbedingungen"),
    row(4, u"zqnCommonDialogVersandarten", {Shipping, 1, u"Versandarten Verkauf"}, key,
        noForm, definition<clsVersandarten>(u"clsVersandarten"),
        u"Versandtexte,Versandformulare,Textbausteine"),
    row(5, u"zqnCommonDialogKundengruppen", {Groups, 1, u"Kundengruppen"}, key,
        noForm, definition<clsKundengruppen>(u"clsKundengruppen"), u"Kundengruppen"),
    row(6, u"zqnCommonDialogKundengruppeShop", {Groups, 2, u"Kundengruppen Shop"}, key,
        noForm, definition<clsKundengruppeShop>(u"clsKundengruppeShop"), u"KundengruppenShop"),
    row(7, u"zqnCommonDialogProvisionsgruppenKunde", {Groups, 9, u"Provisionsgruppen Kunde"}, key,
        noForm, definition<clsProvisionsgruppenKunde>(u"clsProvisionsgruppenKunde"),
        u"ProvisionsgruppenKunde"),
    row(8, u"zqnCommonDialogArtikelgruppe", {Groups, 4, u"Artikelgruppen"}, key,
        noForm, definition<clsArtikelgruppe>(u"clsArtikelgruppe"), u"Artikelgruppen"),
    row(9, u"zqnCommonDialogVerkaufsgruppe", {Groups, 5, u"Verkaufsgruppen"}, key,
        noForm, definition<clsVerkaufsgruppe>(u"clsVerkaufsgruppe"), u"Verkaufsgruppen"),
    row(10, u"zqnCommonDialogEinkaufsgruppe", {Groups, 7, u"Einkaufsgruppen"}, key,
        noForm, definition<clsEinkaufsgruppe>(u"clsEinkaufsgruppe"), u"Einkaufsgruppen"),
    row(11, u"zqnCommonDialogProvisionsgruppenArtikel", {Groups, 8, u"Provisionsgruppen Artikel"}, key,
        noForm, definition<clsProvisionsgruppenArtikel>(u"clsProvisionsgruppenArtikel"),
        u"ProvisionsgruppenArtikel"),
    row(12, u"zqnCommonDialogErlöskontoKennungen", {AccountsAndNumbers, 1, u"Erlöskontokennungen"}, key,
        noForm, definition<clsErloeskontoKennungen>(u"clsErloeskontoKennungen"), u"Erlöskontokennungen"),
    row(13, u"zqnCommonDialogWEKontoKennungen", {AccountsAndNumbers, 2, u"Aufwandskontokennungen"}, key,
        noForm, definition<clsWEKontoKennungen>(u"clsWEKontoKennungen"), u"Aufwandskontokennungen"),
    row(14, u"zqnCommonDialogLieferantengruppen", {Groups, 3, u"Lieferantengruppen"}, key,
        noForm, definition<clsLieferantengruppen>(u"clsLieferantengruppen"), u"Lieferantengruppen"),
    row(15, u"zqnCommonDialogErfassungsschema", {Documents, 1, u"Erfassungsschema Verkauf"}, key,
        noForm, definition<clsErfassungsschema>(u"clsErfassungsschema"), u"Erfassungsschema"),
    row(16, u"zqnCommonDialogPreislisten", {PricesAndOffers, 1, u"Preislisten"}, key,
        own<frmPreislisten>(u"frmPreislisten", &ShowSteps::withSession<frmPreislisten>),
        noDefinition, u"Preislistenkopf,Staffelpreise,Kundenstamm"),
    row(17, u"zqnCommonDialogErfassungsschemaEK", {Documents, 2, u"Erfassungsschema Einkauf"}, key,
        noForm, definition<clsErfassungsschemaEK>(u"clsErfassungsschemaEK"), u"ErfassungsschemaEK"),
    row(18, u"zqnCommonDialogVersandartenEK", {Shipping, 2, u"Versandarten Einkauf"}, key,
        noForm, definition<clsVersandartenEK>(u"clsVersandartenEK"), u"VersandtexteEK,Textbausteine"),
    row(19, u"zqnCommonDialogVertragsarten", {Contracts, 1, u"Vertragsarten"}, key,
        noForm, definition<clsVertragsarten>(u"clsVertragsarten"), u"Vertragsarten"),
    row(20, u"zqnCommonDialogVerkaufsgruppeShop", {Groups, 6, u"Verkaufsgruppen Shop"}, key,
        noForm, definition<clsVerkaufsgruppenShop>(u"clsVerkaufsgruppenShop"), u"VerkaufsgruppenShop"),
    row(21, u"zqnCommonDialogVertriebsStati", {SalesAndCrm, 1, u"Vertriebsstati"}, key,
        own<frmVertriebsstati>(u"frmVertriebsstati", &ShowSteps::vertriebsstati),
        noDefinition, u"Vertriebsstati"),
    row(22, u"zqnCommonDialogMitbewerber", {SalesAndCrm, 6, u"Mitbewerber"}, key,
        noForm, definition<clsMitbewerber>(u"clsMitbewerber"), u"Mitbewerber"),
    row(23, u"zqnCommonDialogAdressHerkunft", {SalesAndCrm, 5, u"Adressherkunft"}, key,
        noForm, definition<clsAdressHerkunft>(u"clsAdressHerkunft"), u"Adressherkunft"),
    row(24, u"zqnCommonDialogLaendernamen", {General, 1, u"Ländernamen"}, key,
        noForm, definition<clsLaendernamen>(u"clsLaendernamen"), u"Laendernamen"),
    row(25, u"zqnCommonDialogCRMKategorien", {SalesAndCrm, 3, u"CRM-Kategorien"}, key,
        own<frmCRMKategorien>(u"frmCRMKategorien", &ShowSteps::crmKategorien),
        noDefinition, u"Kontaktgruppen,Vertriebsstati,Adressherkunft"),
    row(26, u"zqnCommonDialogSelektionskriterienVertrag", {Contracts, 2, u"Selektionskriterien"}, key,
        own<frmSelektionskriterienVertrag>(u"frmSelektionskriterienVertrag", &ShowSteps::selektionskriterien),
        noDefinition, u"SelektionskriterienVertrag"),
    row(27, u"zqnCommonDialogBuchungskreise", {AccountsAndNumbers, 3, u"Buchungskreise"},
        {u"Herkunft", u"Schlüssel des Buchungskreises"},
        noForm, definition<clsBuchungskreise>(u"clsBuchungskreise"), u"Nummernkreis_Buchungskreise"),
    row(28, u"zqnCommonDialogSelectionListValues", {General, 2, u"Wertlisten"},
        {u"Wert,Art des Objekts,Nummer des Feldes,Titel des Fensters", u"Wert"},
        own<frmSelectionListValues>(u"frmSelectionListValues", &ShowSteps::selectionListValues),
        noDefinition, u"SelectionListValues"),
    row(29, u"zqnCommonDialogOfferTemplates", {PricesAndOffers, 2, u"Angebot erstellen"},
        {u"Beliebig", u"Angebotsnummer, -1 für ein neues Angebot, Null nach Abbruch"},
        own<frmOfferTemplates>(u"frmOfferTemplates", &ShowSteps::withSession<frmOfferTemplates>),
        noDefinition, u"Angebotskopf"),
    row(30, u"zqnCommonDialogSaveOfferTemplate", {PricesAndOffers, 3, u"Angebotsvorlage speichern"},
        {u"Angebotsnummer", u"Angebotsnummer"},
        own<frmSaveOfferTemplate>(u"frmSaveOfferTemplate", &ShowSteps::withSession<frmSaveOfferTemplate>),
        noDefinition, u"Angebotskopf"),
    row(31, u"zqnCommonDialogOMRCodes", {Documents, 4, u"OMR/OME-Einstellungen"},
        {u"Belegart", u"ob gespeichert wurde"},
        own<frmOMRCode>(u"frmOMRCode", &ShowSteps::withSession<frmOMRCode, 0>), noDefinition, u""),
    row(32, u"zqnCommonDialogGruendeVerlorenKunde", {SalesAndCrm, 7, u"Kündigungsgründe: Kunde"}, key,
        own<frmKuendigungsgruende>(u"frmKuendigungsgruende", &ShowSteps::reasons<1>),
        noDefinition, u"Kuendigungsgruende"),
    row(33, u"zqnCommonDialogGruendeVerlorenVertrag", {Contracts, 3, u"Kündigungsgründe: Vertrag"}, key,
        own<frmKuendigungsgruende>(u"frmKuendigungsgruende", &ShowSteps::reasons<2>),
        noDefinition, u"Kuendigungsgruende"),
    row(34, u"zqnCommonDialogAufteilungSNCH", {Documents, 3, u"Aufteilung nach Charge und Seriennummer"},
        {u"Aufteilung,Menge,Mengeneinheit,Aufteilungsart,Verfalldatum Pflicht", u"Aufteilung"},
        own<frmAufteilungSNCH>(u"frmAufteilungSNCH", &ShowSteps::quantitySplit), noDefinition, u""),
    row(35, u"zqnCommonDialogKeywords", {General, 3, u"Schlagworte"},
        {u"Schlagwort,Abschnitt", u"Schlagwort"},
        own<frmKeywords>(u"frmKeywords", &ShowSteps::keywords), noDefinition, u"Keywords"),
    row(36, u"zqnCommonDialogVertriebsStatusWechsel", {SalesAndCrm, 2, u"Vertriebsstatus ändern"},
        {u"Grund", u"Grund, leer nach Abbruch"},
        own<frmVTStatusGrund>(u"frmVTStatusGrund", &ShowSteps::statusReason), noDefinition, u""),
    row(37, u"zqnCommonDialogKontaktGruende", {SalesAndCrm, 4, u"Kontaktgründe"}, key,
        noForm, definition<clsKontaktgrund>(u"clsKontaktgrund"), u"KontaktGruende"),
};
// clang-format on

// ---- no kind lacks a row, and no row lacks what opens it

constexpr std::size_t kindCount = std::size(kinds);
static_assert(kindCount == zqnCommonDialogKontaktGruende, "a kind has no row");
consteval bool standInOrder() {
  std::int32_t number = 0;
  return std::ranges::all_of(kinds, [&](const Kind& kind) { return kind.info.number == ++number; });
}
static_assert(standInOrder(), "the rows do not stand in the order of the kinds");
static_assert(std::ranges::all_of(kinds,
                                  [](const Kind& kind) { return kind.form.make || kind.definition.make; }),
              "a kind has neither a form nor a definition class");

/// The kinds as hosts see them.
constexpr auto infos = [] {
  std::array<KindInfo, kindCount> result{};
  std::ranges::transform(kinds, result.begin(), &Kind::info);
  return result;
}();

const Kind* find(std::int32_t number) noexcept {
  return number >= 1 && number <= static_cast<std::int32_t>(kindCount) ? &kinds[number - 1] : nullptr;
}

constexpr const char16_t* subjectTitles[] = {
    u"Vertrieb und CRM", u"Verträge",           u"Preise und Angebote",  u"Zahlung",  u"Versand",
    u"Gruppen",          u"Konten und Nummern", u"Belege und Erfassung", u"Allgemein"};
static_assert(std::size(subjectTitles) == static_cast<std::size_t>(KindSubject::General) + 1,
              "a subject has no title");

}  // namespace

std::span<const KindInfo> dialogKinds() noexcept { return infos; }

const KindInfo* findKind(std::int32_t number) noexcept {
  return find(number) ? &infos[static_cast<std::size_t>(number) - 1] : nullptr;
}

const char16_t* subjectTitle(KindSubject subject) noexcept {
  return subjectTitles[static_cast<std::size_t>(subject)];
}

bool isOffered(std::int32_t number) noexcept { return find(number) != nullptr; }

bool hasDefinition(std::int32_t number) noexcept {
  const Kind* kind = find(number);
  return kind != nullptr && kind->definition.make != nullptr;
}

std::unique_ptr<clsBasisDialog> makeDefinition(std::int32_t number) {
  return hasDefinition(number) ? find(number)->definition.make() : nullptr;
}

std::unique_ptr<Form> makeForm(std::int32_t number) {
  const Kind* kind = find(number);
  return kind != nullptr && kind->form.make != nullptr ? kind->form.make() : makeGenericForm(number);
}

std::unique_ptr<Form> makeGenericForm(std::int32_t number) {
  ResumeNext step;
  auto form = std::make_unique<frmDialog>(makeDefinition);
  // Without a connection a class may fail to fill its drop-downs, the last thing it does.
  step([&] { form->Init(nothing, u"", number); });
  return form;
}

ShowSteps::Road roadOf(std::int32_t number) noexcept {
  const Kind* kind = find(number);
  return kind != nullptr ? kind->form.show : &ShowSteps::generic;
}

}  // namespace zqn
