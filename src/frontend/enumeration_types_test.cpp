// SPDX-License-Identifier: MIT
//
// Each member belongs to the enumeration that it was published in: a host's variable of that type takes it.
// Nothing runs here; a member of another enumeration does not compile.
#include <concepts>

#include "frontend/enumerations.h"

namespace zqn::testing {
namespace {

template <class Enumeration>
constexpr bool areOf(const std::same_as<Enumeration> auto&...) {
  return true;
}

static_assert(areOf<zqnCommonDialogConstants>(
    zqnCommonDialogZahlungsarten, zqnCommonDialogZahlungsartenEK, zqnCommonDialogZahlungsbedingungen,
    zqnCommonDialogVersandarten, zqnCommonDialogKundengruppen, zqnCommonDialogKundengruppeShop,
    zqnCommonDialogProvisionsgruppenKunde, zqnCommonDialogArtikelgruppe, zqnCommonDialogVerkaufsgruppe,
    zqnCommonDialogEinkaufsgruppe, zqnCommonDialogProvisionsgruppenArtikel,
    zqnCommonDialogErlöskontoKennungen, zqnCommonDialogWEKontoKennungen, zqnCommonDialogLieferantengruppen,
    zqnCommonDialogErfassungsschema, zqnCommonDialogPreislisten, zqnCommonDialogErfassungsschemaEK,
    zqnCommonDialogVersandartenEK, zqnCommonDialogVertragsarten, zqnCommonDialogVerkaufsgruppeShop,
    zqnCommonDialogVertriebsStati, zqnCommonDialogMitbewerber, zqnCommonDialogAdressHerkunft,
    zqnCommonDialogLaendernamen, zqnCommonDialogCRMKategorien, zqnCommonDialogSelektionskriterienVertrag,
    zqnCommonDialogBuchungskreise, zqnCommonDialogSelectionListValues, zqnCommonDialogOfferTemplates,
    zqnCommonDialogSaveOfferTemplate, zqnCommonDialogOMRCodes, zqnCommonDialogGruendeVerlorenKunde,
    zqnCommonDialogGruendeVerlorenVertrag, zqnCommonDialogAufteilungSNCH, zqnCommonDialogKeywords,
    zqnCommonDialogVertriebsStatusWechsel, zqnCommonDialogKontaktGruende));
static_assert(areOf<zqnCalendarConstants>(zqModeCalendar, zqModePlaner, zqModeRessources));
static_assert(areOf<zqnFormShowConstants>(zqnFormShowModeless, zqnFormShowModal));
static_assert(areOf<zqnAnredeConstants>(zqnFirma, zqnHerr, zqnFrau));
static_assert(areOf<zqnGetSettingConstants>(zqnGetUserSettingsOnly, zqnGetGlobalSettingsOnly,
                                            zqnGetUserSettingsFirst, zqnGetGlobalSettingsFirst,
                                            zqnGetDescription));
static_assert(areOf<zqnSaveSettingConstants>(zqnSaveAsUserSetting, zqnSaveAsGlobalSetting));
static_assert(areOf<zqnAuskunftSortConstants>(zqnAuskunftSortUnsorted, zqnAuskunftSortAscending,
                                              zqnAuskunftSortDescending));
static_assert(areOf<zqnAuskunftResultConstants>(zqnAuskunftResultNothingSelected,
                                                zqnAuskunftResultSomethingSelected));
static_assert(areOf<zqnPopupConstants>(zqnPopupItem, zqnPopupItemWithSubitem, zqnPopupSubitem));
static_assert(areOf<zqnErrorBoxConstants>(zqnErrorBoxOKOnly, zqnErrorBoxOKCancel, zqnErrorBoxCritical,
                                          zqnErrorBoxQuestion, zqnErrorBoxExclamation, zqnErrorBoxInformation,
                                          zqnErrorBoxDefaultButton1, zqnErrorBoxDefaultButton2));
static_assert(areOf<zqnErrorBoxResultConstants>(zqnErrorBoxResultOK, zqnErrorBoxResultCancel));
static_assert(areOf<zqnConnectionTypeConstants>(zqnConnectionTypeNotConnected, zqnConnectionTypeMSAccess,
                                                zqnConnectionTypeMSSQLServer));
static_assert(areOf<zqnDataSourceTypeConstants>(zqnDataSourceTypeMSAccess, zqnDataSourceTypeMSSQLServer));
static_assert(areOf<zqnStatistikChartTypeConstants>(zqnStatistikChartTypeDefault,
                                                    zqnStatistikChartTypeTabelle,
                                                    zqnStatistikChartTypeBalkendiagramm,
                                                    zqnStatistikChartTypeKreisdiagramm));
static_assert(areOf<zqnStatistikPeriodisierungConstants>(zqnStatistikPeriodisierungMonat,
                                                         zqnStatistikPeriodisierungWoche));
static_assert(areOf<zqnStatistikWirtschaftsjahrConstants>(zqnStatistikAktuellesWirtschaftsjahr));
static_assert(areOf<zqnStuecklistenaufösungConstants>(zqnKomplettAuflösen, zqnInKundenauftragAuflösen,
                                                      zqnInBestellungAuflösen));
static_assert(areOf<zqnUserConstants>(zqnUserAdd, zqnUserUpdate, zqnUserAddUpdate));
static_assert(areOf<zqnAppAccessConstants>(zqnAppAccessEveryone, zqnAppAccessVerkauf, zqnAppAccessEinkauf,
                                           zqnAppAccessLager, zqnAppAccessVertrag, zqnAppAccessAdmin));
static_assert(areOf<zqnRundungsartConstants>(zqnKaufmaennischRunden, zqnImmerAufrunden, zqnImmerAbrunden));
static_assert(areOf<zqnFibuUebergabeConstants>(zqnRechnungen, zqnGutschriften, zqnDebitorenSollStellung,
                                               zqnEingangsrechnungen, zqnKreditorenHabenStellung));
static_assert(areOf<zqUmrechDialogConstants>(zqUmrechDialogAllowNothing, zqUmrechDialogAllowEdit,
                                             zqUmrechDialogAllowChangeMEVon, zqUmrechDialogAllowChangeMENach,
                                             zqUmrechDialogAllowCancel, zqUmrechDialogDefaultSettings));
static_assert(areOf<zqUmrechResultConstants>(zqUmrechResultOK, zqUmrechResultUserAbort,
                                             zqUmrechResultNotFound, zqUmrechResultError));
static_assert(areOf<zqPLUPreistypConstants>(zqPLUDefault, zqPLUNettopreis, zqPLUBruttopreis));
static_assert(areOf<zqPLUResultConstants>(zqPLUFoundNothing, zqPLUFoundSonderpreis, zqPLUFoundSonderVKGRabatt,
                                          zqPLUFoundListenpreis, zqPLUFoundListenVKGRabatt,
                                          zqPLUFoundartikelpreis, zqPLUFoundArtikelVKGRabatt,
                                          zqPLUFoundAktionspreis, zqPLUFoundAktionsVKGRabatt, zqPLUError));
static_assert(areOf<zqPLUPreisfindungsart>(zqPLUPreisfindungVorteilhaft, zqPLUPreisfindungHierarchisch));
static_assert(areOf<zqPLURabattfindungsart>(zqPLURabattfindungVorteilhaft, zqPLURabattfindungHierarchisch));
static_assert(areOf<zqPLURabattberechnung>(zqPLURabattberechnungDefault, zqPLURabattberechnungAdditiv,
                                           zqPLURabattberechnungKette));
static_assert(areOf<zqPLUErsetzePreis>(zqPLUErsetzePreisNicht, zqPLUErsetzePreisDurchArtikelpreis,
                                       zqPLUErsetzePreisDurchListenpreis,
                                       zqPLUErsetzePreisDurchListenArtikelpreis));
static_assert(areOf<zqnDiAusConstants>(zqnDiAusArtikel, zqnDiAusKunden, zqnDiAusLieferanten, zqnDiAusAngebote,
                                       zqnDiAusAuftraege, zqnDiAusLieferscheine, zqnDiAusRechnungen,
                                       zqnDiAusGutschriften, zqnDiAusBestellungen, zqnDiAusPositionen,
                                       zqnDiAusGeneric));
static_assert(areOf<zqnSelectionDataTypes>(zqnSelectionDataTypeText, zqnSelectionDataTypeNumeric,
                                           zqnSelectionDataTypeDate, zqnSelectionDataTypeTextSearch,
                                           zqnSelectionDataTypeDateConv102, zqnSelectionDataTypeKeyword));
static_assert(areOf<zqnSelectionReturnTypes>(zqnSelectionReturnTypeSQL, zqnSelectionReturnTypeText));
static_assert(areOf<zqnBackStyleConstants>(zqnBackStyleTransparent, zqnBackStyleOpaque));
static_assert(areOf<zqnSelectionAuskunftTypes>(zqnSelectionAuskunftNone, zqnSelectionAuskunftCombo,
                                               zqnSelectionAuskunftDialog, zqnSelectionAuskunftValueList));
static_assert(areOf<zqnSetSessionDateTypes>(zqnSetSystemDate, zqnSetByDate, zqnSetByDialog));
static_assert(areOf<zqnRightTypeConstants>(zqnRightView, zqnRightSave, zqnRightDelete, zqnRightPrint));
static_assert(areOf<zqnAddresstypeConstants>(
    zqnAddresstypeKunde, zqnAddresstypeKundenAnsprechpartner, zqnAddresstypeKundenZusatzadresse,
    zqnAddresstypeInteressent, zqnAddresstypeInteressentenAnsprechpartner, zqnAddresstypeLieferant,
    zqnAddresstypeLieferantenAnsprechpartner, zqnAddresstypePrivat, zqnAddresstypePersonal));
static_assert(areOf<zqImageConstants>(
    zqImgInteressentenstamm, zqImgInteressentenAnsprechpartnerM, zqImgInteressentenAnsprechpartnerF,
    zqImgKundenstamm, zqImgKundenAnsprechpartnerM, zqImgKundenAnsprechpartnerF, zqImgLieferantenstamm,
    zqImgLieferantenAnsprechpartnerM, zqImgLieferantenAnsprechpartnerF, zqImgPrivatadresseM,
    zqImgPrivatadresseF, zqImgPersonalstammM, zqImgPersonalstammF, zqImgZusatzadressen, zqImgPhone,
    zqImgPhoneGrey, zqImgFax, zqImgFaxGrey, zqImgMobilePhone, zqImgMobilePhoneGrey, zqImgEMail,
    zqImgEMailGrey, zqImgHomepage, zqImgHomepageGrey, zqImgAddressbook, zqImgSearchContact, zqImgFavorites,
    zqImgHyperlinkCursor, zqImgInteressentenAnsprechpartnerMFavorite,
    zqImgInteressentenAnsprechpartnerFFavorite, zqImgKundenAnsprechpartnerMFavorite,
    zqImgKundenAnsprechpartnerFFavorite, zqImgLieferantenAnsprechpartnerMFavorite,
    zqImgLieferantenAnsprechpartnerFFavorite, zqImgBirthdaycake, zqImgBirthdaycakeGrey, zqImgHome,
    zqImgHomeGrey, zqImgArrowUp, zqImgArrowDown, zqImgDetails, zqImgContractFolder, zqImgContractNode1,
    zqImgContractNode2, zqImgSearch, zqImgSearchCategory, zqImgCategory));
static_assert(areOf<zqnRightIDConstants>(
    zqnRightIDWarenwirtschaft, zqnRightIDStammdaten, zqnRightIDKundenstamm, zqnRightIDLieferantenstamm,
    zqnRightIDArtikelstamm, zqnRightIDVertragsgegenstaende, zqnRightIDPreislisten,
    zqnRightIDEinkaufskonditionen, zqnRightIDStuecklisten, zqnRightIDTextbausteine, zqnRightIDWaehrungen,
    zqnRightIDErloeskontenzuordnung, zqnRightIDAufwandskontenzuordnung, zqnRightIDAuftragsbearbeitung,
    zqnRightIDAngebote, zqnRightIDRueckstaende, zqnRightIDAuftraege, zqnRightIDGutschriften,
    zqnRightIDLieferscheine, zqnRightIDRechnungen, zqnRightIDFibuUebergabeVK, zqnRightIDVertraege,
    zqnRightIDVertragsrechnungen, zqnRightIDVertragsgutschriften, zqnRightIDBestellwesen,
    zqnRightIDBeschaffungsvorschlaege, zqnRightIDBestellungen, zqnRightIDWareneingaengeBewerten,
    zqnRightIDFibuUebergabeEK, zqnRightIDLager, zqnRightIDDialogbuchungen, zqnRightIDWareneingaenge,
    zqnRightIDLagerbewertung, zqnRightIDVerfuegbarkeitsuebersicht, zqnRightIDLagerjournal, zqnRightIDInventur,
    zqnRightIDZaehllisten, zqnRightIDZaehlmengen, zqnRightIDInventurdifferenzen, zqnRightIDVerkaufsstatistik,
    zqnRightIDProvisionsabrechnung, zqnRightIDExtras, zqnRightIDProtokolle, zqnRightIDExport, zqnRightIDTools,
    zqnRightIDIndividualprogramme, zqnRightIDEinkaufspreis, zqnRightIDVerkaufspreis, zqnRightIDPersonalstamm,
    zqnRightIDKundenansprechpartner, zqnRightIDLieferantenansprechpartner, zqnRightIDInteressentenstamm,
    zqnRightIDInteressentenansprechpartner, zqnRightIDEinkaufbudgets));

}  // namespace
}  // namespace zqn::testing
