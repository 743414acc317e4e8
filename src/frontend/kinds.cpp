// SPDX-License-Identifier: MIT
#include "frontend/kinds.h"

namespace zqn {

namespace {

using enum KindServer;

// clang-format off
constexpr KindInfo kinds[] = {
    {1, u"zqnCommonDialogZahlungsarten", Dedicated, u"frmZahlungsarten", u"clsZahlungsart", u"Zahlungsarten,Textbausteine,Zahlungsbedingungen"},
    {2, u"zqnCommonDialogZahlungsartenEK", Dedicated, u"frmZahlungsarten", u"clsZahlungsartEk", u"ZahlungsartenEK,Textbausteine,Zahlungsbedingungen"},
    {3, u"zqnCommonDialogZahlungsbedingungen", Generic, u"frmDialog", u"clsZahlungsbedingungen", u"Zahlungsbedingungen"},
    {4, u"zqnCommonDialogVersandarten", Generic, u"frmDialog", u"clsVersandarten", u"Versandtexte,Versandformulare,Textbausteine"},
    {5, u"zqnCommonDialogKundengruppen", Generic, u"frmDialog", u"clsKundengruppen", u"Kundengruppen"},
    {6, u"zqnCommonDialogKundengruppeShop", Generic, u"frmDialog", u"clsKundengruppeShop", u"KundengruppenShop"},
    {7, u"zqnCommonDialogProvisionsgruppenKunde", Generic, u"frmDialog", u"clsProvisionsgruppenKunde", u"ProvisionsgruppenKunde"},
    {8, u"zqnCommonDialogArtikelgruppe", Generic, u"frmDialog", u"clsArtikelgruppe", u"Artikelgruppen"},
    {9, u"zqnCommonDialogVerkaufsgruppe", Generic, u"frmDialog", u"clsVerkaufsgruppe", u"Verkaufsgruppen"},
    {10, u"zqnCommonDialogEinkaufsgruppe", Generic, u"frmDialog", u"clsEinkaufsgruppe", u"Einkaufsgruppen"},
    {11, u"zqnCommonDialogProvisionsgruppenArtikel", Generic, u"frmDialog", u"clsProvisionsgruppenArtikel", u"ProvisionsgruppenArtikel"},
    {12, u"zqnCommonDialogErlöskontoKennungen", Generic, u"frmDialog", u"clsErloeskontoKennungen", u"Erlöskontokennungen"},
    {13, u"zqnCommonDialogWEKontoKennungen", Generic, u"frmDialog", u"clsWEKontoKennungen", u"Aufwandskontokennungen"},
    {14, u"zqnCommonDialogLieferantengruppen", Generic, u"frmDialog", u"clsLieferantengruppen", u"Lieferantengruppen"},
    {15, u"zqnCommonDialogErfassungsschema", Generic, u"frmDialog", u"clsErfassungsschema", u"Erfassungsschema"},
    {16, u"zqnCommonDialogPreislisten", Dedicated, u"frmPreislisten", u"", u"Preislistenkopf,Staffelpreise,Kundenstamm"},
    {17, u"zqnCommonDialogErfassungsschemaEK", Generic, u"frmDialog", u"clsErfassungsschemaEK", u"ErfassungsschemaEK"},
    {18, u"zqnCommonDialogVersandartenEK", Generic, u"frmDialog", u"clsVersandartenEK", u"VersandtexteEK,Textbausteine"},
    {19, u"zqnCommonDialogVertragsarten", Generic, u"frmDialog", u"clsVertragsarten", u"Vertragsarten"},
    {20, u"zqnCommonDialogVerkaufsgruppeShop", Generic, u"frmDialog", u"clsVerkaufsgruppenShop", u"VerkaufsgruppenShop"},
    {21, u"zqnCommonDialogVertriebsStati", Dedicated, u"frmVertriebsstati", u"", u"Vertriebsstati"},
    {22, u"zqnCommonDialogMitbewerber", Generic, u"frmDialog", u"clsMitbewerber", u"Mitbewerber"},
    {23, u"zqnCommonDialogAdressHerkunft", Generic, u"frmDialog", u"clsAdressHerkunft", u"Adressherkunft"},
    {24, u"zqnCommonDialogLaendernamen", Generic, u"frmDialog", u"clsLaendernamen", u"Laendernamen"},
    {25, u"zqnCommonDialogCRMKategorien", Dedicated, u"frmCRMKategorien", u"", u"Kontaktgruppen,Vertriebsstati,Adressherkunft"},
    {26, u"zqnCommonDialogSelektionskriterienVertrag", Dedicated, u"frmSelektionskriterienVertrag", u"", u"SelektionskriterienVertrag"},
    {27, u"zqnCommonDialogBuchungskreise", Generic, u"frmDialog", u"clsBuchungskreise", u"Nummernkreis_Buchungskreise"},
    {28, u"zqnCommonDialogSelectionListValues", Dedicated, u"frmSelectionListValues", u"", u"SelectionListValues"},
    {29, u"zqnCommonDialogOfferTemplates", Dedicated, u"frmOfferTemplates", u"", u"Angebotskopf"},
    {30, u"zqnCommonDialogSaveOfferTemplate", Dedicated, u"frmSaveOfferTemplate", u"", u"Angebotskopf"},
    {31, u"zqnCommonDialogOMRCodes", Dedicated, u"frmOMRCode", u"", u""},
    {32, u"zqnCommonDialogGruendeVerlorenKunde", Dedicated, u"frmKuendigungsgruende", u"", u"Kuendigungsgruende"},
    {33, u"zqnCommonDialogGruendeVerlorenVertrag", Dedicated, u"frmKuendigungsgruende", u"", u"Kuendigungsgruende"},
    {34, u"zqnCommonDialogAufteilungSNCH", Dedicated, u"frmAufteilungSNCH", u"", u""},
    {35, u"zqnCommonDialogKeywords", Dedicated, u"frmKeywords", u"", u"Keywords"},
    {36, u"zqnCommonDialogVertriebsStatusWechsel", Dedicated, u"frmVTStatusGrund", u"", u""},
    {37, u"zqnCommonDialogKontaktGruende", Generic, u"frmDialog", u"clsKontaktgrund", u"KontaktGruende"},
};
// clang-format on

}  // namespace

std::span<const KindInfo> dialogKinds() noexcept { return kinds; }

const KindInfo* findKind(std::int32_t number) noexcept {
  return number >= 1 && number <= static_cast<std::int32_t>(std::size(kinds)) ? &kinds[number - 1] : nullptr;
}

}  // namespace zqn
