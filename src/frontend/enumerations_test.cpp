// SPDX-License-Identifier: MIT
//
// Every member of the published enumerations against the value that hosts were given.
#include "frontend/enumerations.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "frontend/kinds.h"
#include "testing/runtime.h"

namespace zqn::testing {
namespace {

struct Published {
  int value;
  const char* name;
  int inCode;
};

// clang-format off
constexpr Published published[] = {
    // zqnCommonDialogConstants
    {1, "zqnCommonDialogZahlungsarten", zqnCommonDialogZahlungsarten},
    {2, "zqnCommonDialogZahlungsartenEK", zqnCommonDialogZahlungsartenEK},
    {3, "zqnCommonDialogZahlungsbedingungen", zqnCommonDialogZahlungsbedingungen},
    {4, "zqnCommonDialogVersandarten", zqnCommonDialogVersandarten},
    {5, "zqnCommonDialogKundengruppen", zqnCommonDialogKundengruppen},
    {6, "zqnCommonDialogKundengruppeShop", zqnCommonDialogKundengruppeShop},
    {7, "zqnCommonDialogProvisionsgruppenKunde", zqnCommonDialogProvisionsgruppenKunde},
    {8, "zqnCommonDialogArtikelgruppe", zqnCommonDialogArtikelgruppe},
    {9, "zqnCommonDialogVerkaufsgruppe", zqnCommonDialogVerkaufsgruppe},
    {10, "zqnCommonDialogEinkaufsgruppe", zqnCommonDialogEinkaufsgruppe},
    {11, "zqnCommonDialogProvisionsgruppenArtikel", zqnCommonDialogProvisionsgruppenArtikel},
    {12, "zqnCommonDialogErlöskontoKennungen", zqnCommonDialogErlöskontoKennungen},
    {13, "zqnCommonDialogWEKontoKennungen", zqnCommonDialogWEKontoKennungen},
    {14, "zqnCommonDialogLieferantengruppen", zqnCommonDialogLieferantengruppen},
    {15, "zqnCommonDialogErfassungsschema", zqnCommonDialogErfassungsschema},
    {16, "zqnCommonDialogPreislisten", zqnCommonDialogPreislisten},
    {17, "zqnCommonDialogErfassungsschemaEK", zqnCommonDialogErfassungsschemaEK},
    {18, "zqnCommonDialogVersandartenEK", zqnCommonDialogVersandartenEK},
    {19, "zqnCommonDialogVertragsarten", zqnCommonDialogVertragsarten},
    {20, "zqnCommonDialogVerkaufsgruppeShop", zqnCommonDialogVerkaufsgruppeShop},
    {21, "zqnCommonDialogVertriebsStati", zqnCommonDialogVertriebsStati},
    {22, "zqnCommonDialogMitbewerber", zqnCommonDialogMitbewerber},
    {23, "zqnCommonDialogAdressHerkunft", zqnCommonDialogAdressHerkunft},
    {24, "zqnCommonDialogLaendernamen", zqnCommonDialogLaendernamen},
    {25, "zqnCommonDialogCRMKategorien", zqnCommonDialogCRMKategorien},
    {26, "zqnCommonDialogSelektionskriterienVertrag", zqnCommonDialogSelektionskriterienVertrag},
    {27, "zqnCommonDialogBuchungskreise", zqnCommonDialogBuchungskreise},
    {28, "zqnCommonDialogSelectionListValues", zqnCommonDialogSelectionListValues},
    {29, "zqnCommonDialogOfferTemplates", zqnCommonDialogOfferTemplates},
    {30, "zqnCommonDialogSaveOfferTemplate", zqnCommonDialogSaveOfferTemplate},
    {31, "zqnCommonDialogOMRCodes", zqnCommonDialogOMRCodes},
    {32, "zqnCommonDialogGruendeVerlorenKunde", zqnCommonDialogGruendeVerlorenKunde},
    {33, "zqnCommonDialogGruendeVerlorenVertrag", zqnCommonDialogGruendeVerlorenVertrag},
    {34, "zqnCommonDialogAufteilungSNCH", zqnCommonDialogAufteilungSNCH},
    {35, "zqnCommonDialogKeywords", zqnCommonDialogKeywords},
    {36, "zqnCommonDialogVertriebsStatusWechsel", zqnCommonDialogVertriebsStatusWechsel},
    {37, "zqnCommonDialogKontaktGruende", zqnCommonDialogKontaktGruende},
    // zqnCalendarConstants
    {0, "zqModeCalendar", zqModeCalendar},
    {1, "zqModePlaner", zqModePlaner},
    {2, "zqModeRessources", zqModeRessources},
    // zqnFormShowConstants
    {0, "zqnFormShowModeless", zqnFormShowModeless},
    {1, "zqnFormShowModal", zqnFormShowModal},
    // zqnAnredeConstants
    {0, "zqnFirma", zqnFirma},
    {1, "zqnHerr", zqnHerr},
    {2, "zqnFrau", zqnFrau},
    // zqnGetSettingConstants
    {0, "zqnGetUserSettingsOnly", zqnGetUserSettingsOnly},
    {1, "zqnGetGlobalSettingsOnly", zqnGetGlobalSettingsOnly},
    {2, "zqnGetUserSettingsFirst", zqnGetUserSettingsFirst},
    {3, "zqnGetGlobalSettingsFirst", zqnGetGlobalSettingsFirst},
    {-1, "zqnGetDescription", zqnGetDescription},
    // zqnSaveSettingConstants
    {0, "zqnSaveAsUserSetting", zqnSaveAsUserSetting},
    {1, "zqnSaveAsGlobalSetting", zqnSaveAsGlobalSetting},
    // zqnAuskunftSortConstants
    {0, "zqnAuskunftSortUnsorted", zqnAuskunftSortUnsorted},
    {1, "zqnAuskunftSortAscending", zqnAuskunftSortAscending},
    {2, "zqnAuskunftSortDescending", zqnAuskunftSortDescending},
    // zqnAuskunftResultConstants
    {0, "zqnAuskunftResultNothingSelected", zqnAuskunftResultNothingSelected},
    {1, "zqnAuskunftResultSomethingSelected", zqnAuskunftResultSomethingSelected},
    // zqnPopupConstants
    {0, "zqnPopupItem", zqnPopupItem},
    {1, "zqnPopupItemWithSubitem", zqnPopupItemWithSubitem},
    {2, "zqnPopupSubitem", zqnPopupSubitem},
    // zqnErrorBoxConstants
    {0, "zqnErrorBoxOKOnly", zqnErrorBoxOKOnly},
    {1, "zqnErrorBoxOKCancel", zqnErrorBoxOKCancel},
    {16, "zqnErrorBoxCritical", zqnErrorBoxCritical},
    {32, "zqnErrorBoxQuestion", zqnErrorBoxQuestion},
    {48, "zqnErrorBoxExclamation", zqnErrorBoxExclamation},
    {64, "zqnErrorBoxInformation", zqnErrorBoxInformation},
    {0, "zqnErrorBoxDefaultButton1", zqnErrorBoxDefaultButton1},
    {256, "zqnErrorBoxDefaultButton2", zqnErrorBoxDefaultButton2},
    // zqnErrorBoxResultConstants
    {1, "zqnErrorBoxResultOK", zqnErrorBoxResultOK},
    {2, "zqnErrorBoxResultCancel", zqnErrorBoxResultCancel},
    // zqnConnectionTypeConstants
    {0, "zqnConnectionTypeNotConnected", zqnConnectionTypeNotConnected},
    {1, "zqnConnectionTypeMSAccess", zqnConnectionTypeMSAccess},
    {2, "zqnConnectionTypeMSSQLServer", zqnConnectionTypeMSSQLServer},
    // zqnDataSourceTypeConstants
    {1, "zqnDataSourceTypeMSAccess", zqnDataSourceTypeMSAccess},
    {2, "zqnDataSourceTypeMSSQLServer", zqnDataSourceTypeMSSQLServer},
    // zqnStatistikChartTypeConstants
    {0, "zqnStatistikChartTypeDefault", zqnStatistikChartTypeDefault},
    {1, "zqnStatistikChartTypeTabelle", zqnStatistikChartTypeTabelle},
    {2, "zqnStatistikChartTypeBalkendiagramm", zqnStatistikChartTypeBalkendiagramm},
    {3, "zqnStatistikChartTypeKreisdiagramm", zqnStatistikChartTypeKreisdiagramm},
    // zqnStatistikPeriodisierungConstants
    {1, "zqnStatistikPeriodisierungMonat", zqnStatistikPeriodisierungMonat},
    {2, "zqnStatistikPeriodisierungWoche", zqnStatistikPeriodisierungWoche},
    // zqnStatistikWirtschaftsjahrConstants
    {0, "zqnStatistikAktuellesWirtschaftsjahr", zqnStatistikAktuellesWirtschaftsjahr},
    // zqnStuecklistenaufösungConstants
    {0, "zqnKomplettAuflösen", zqnKomplettAuflösen},
    {1, "zqnInKundenauftragAuflösen", zqnInKundenauftragAuflösen},
    {2, "zqnInBestellungAuflösen", zqnInBestellungAuflösen},
    // zqnUserConstants
    {1, "zqnUserAdd", zqnUserAdd},
    {2, "zqnUserUpdate", zqnUserUpdate},
    {3, "zqnUserAddUpdate", zqnUserAddUpdate},
    // zqnAppAccessConstants
    {0, "zqnAppAccessEveryone", zqnAppAccessEveryone},
    {1, "zqnAppAccessVerkauf", zqnAppAccessVerkauf},
    {2, "zqnAppAccessEinkauf", zqnAppAccessEinkauf},
    {4, "zqnAppAccessLager", zqnAppAccessLager},
    {8, "zqnAppAccessVertrag", zqnAppAccessVertrag},
    {536870912, "zqnAppAccessAdmin", zqnAppAccessAdmin},
    // zqnRundungsartConstants
    {0, "zqnKaufmaennischRunden", zqnKaufmaennischRunden},
    {1, "zqnImmerAufrunden", zqnImmerAufrunden},
    {2, "zqnImmerAbrunden", zqnImmerAbrunden},
    // zqnFibuUebergabeConstants
    {1, "zqnRechnungen", zqnRechnungen},
    {2, "zqnGutschriften", zqnGutschriften},
    {3, "zqnDebitorenSollStellung", zqnDebitorenSollStellung},
    {4, "zqnEingangsrechnungen", zqnEingangsrechnungen},
    {4, "zqnKreditorenHabenStellung", zqnKreditorenHabenStellung},
    // zqUmrechDialogConstants
    {0, "zqUmrechDialogAllowNothing", zqUmrechDialogAllowNothing},
    {1, "zqUmrechDialogAllowEdit", zqUmrechDialogAllowEdit},
    {4, "zqUmrechDialogAllowChangeMEVon", zqUmrechDialogAllowChangeMEVon},
    {8, "zqUmrechDialogAllowChangeMENach", zqUmrechDialogAllowChangeMENach},
    {32, "zqUmrechDialogAllowCancel", zqUmrechDialogAllowCancel},
    {255, "zqUmrechDialogDefaultSettings", zqUmrechDialogDefaultSettings},
    // zqUmrechResultConstants
    {0, "zqUmrechResultOK", zqUmrechResultOK},
    {10, "zqUmrechResultUserAbort", zqUmrechResultUserAbort},
    {20, "zqUmrechResultNotFound", zqUmrechResultNotFound},
    {99, "zqUmrechResultError", zqUmrechResultError},
    // zqPLUPreistypConstants
    {0, "zqPLUDefault", zqPLUDefault},
    {1, "zqPLUNettopreis", zqPLUNettopreis},
    {2, "zqPLUBruttopreis", zqPLUBruttopreis},
    // zqPLUResultConstants
    {0, "zqPLUFoundNothing", zqPLUFoundNothing},
    {1, "zqPLUFoundSonderpreis", zqPLUFoundSonderpreis},
    {2, "zqPLUFoundSonderVKGRabatt", zqPLUFoundSonderVKGRabatt},
    {4, "zqPLUFoundListenpreis", zqPLUFoundListenpreis},
    {8, "zqPLUFoundListenVKGRabatt", zqPLUFoundListenVKGRabatt},
    {16, "zqPLUFoundartikelpreis", zqPLUFoundartikelpreis},
    {32, "zqPLUFoundArtikelVKGRabatt", zqPLUFoundArtikelVKGRabatt},
    {64, "zqPLUFoundAktionspreis", zqPLUFoundAktionspreis},
    {128, "zqPLUFoundAktionsVKGRabatt", zqPLUFoundAktionsVKGRabatt},
    {1024, "zqPLUError", zqPLUError},
    // zqPLUPreisfindungsart
    {0, "zqPLUPreisfindungVorteilhaft", zqPLUPreisfindungVorteilhaft},
    {1, "zqPLUPreisfindungHierarchisch", zqPLUPreisfindungHierarchisch},
    // zqPLURabattfindungsart
    {0, "zqPLURabattfindungVorteilhaft", zqPLURabattfindungVorteilhaft},
    {1, "zqPLURabattfindungHierarchisch", zqPLURabattfindungHierarchisch},
    // zqPLURabattberechnung
    {-1, "zqPLURabattberechnungDefault", zqPLURabattberechnungDefault},
    {0, "zqPLURabattberechnungAdditiv", zqPLURabattberechnungAdditiv},
    {1, "zqPLURabattberechnungKette", zqPLURabattberechnungKette},
    // zqPLUErsetzePreis
    {0, "zqPLUErsetzePreisNicht", zqPLUErsetzePreisNicht},
    {1, "zqPLUErsetzePreisDurchArtikelpreis", zqPLUErsetzePreisDurchArtikelpreis},
    {2, "zqPLUErsetzePreisDurchListenpreis", zqPLUErsetzePreisDurchListenpreis},
    {3, "zqPLUErsetzePreisDurchListenArtikelpreis", zqPLUErsetzePreisDurchListenArtikelpreis},
    // zqnDiAusConstants
    {10, "zqnDiAusArtikel", zqnDiAusArtikel},
    {20, "zqnDiAusKunden", zqnDiAusKunden},
    {30, "zqnDiAusLieferanten", zqnDiAusLieferanten},
    {40, "zqnDiAusAngebote", zqnDiAusAngebote},
    {50, "zqnDiAusAuftraege", zqnDiAusAuftraege},
    {60, "zqnDiAusLieferscheine", zqnDiAusLieferscheine},
    {70, "zqnDiAusRechnungen", zqnDiAusRechnungen},
    {80, "zqnDiAusGutschriften", zqnDiAusGutschriften},
    {90, "zqnDiAusBestellungen", zqnDiAusBestellungen},
    {10, "zqnDiAusPositionen", zqnDiAusPositionen},
    {999, "zqnDiAusGeneric", zqnDiAusGeneric},
    // zqnSelectionDataTypes
    {0, "zqnSelectionDataTypeText", zqnSelectionDataTypeText},
    {1, "zqnSelectionDataTypeNumeric", zqnSelectionDataTypeNumeric},
    {2, "zqnSelectionDataTypeDate", zqnSelectionDataTypeDate},
    {3, "zqnSelectionDataTypeTextSearch", zqnSelectionDataTypeTextSearch},
    {4, "zqnSelectionDataTypeDateConv102", zqnSelectionDataTypeDateConv102},
    {8, "zqnSelectionDataTypeKeyword", zqnSelectionDataTypeKeyword},
    // zqnSelectionReturnTypes
    {0, "zqnSelectionReturnTypeSQL", zqnSelectionReturnTypeSQL},
    {1, "zqnSelectionReturnTypeText", zqnSelectionReturnTypeText},
    // zqnBackStyleConstants
    {0, "zqnBackStyleTransparent", zqnBackStyleTransparent},
    {1, "zqnBackStyleOpaque", zqnBackStyleOpaque},
    // zqnSelectionAuskunftTypes
    {0, "zqnSelectionAuskunftNone", zqnSelectionAuskunftNone},
    {1, "zqnSelectionAuskunftCombo", zqnSelectionAuskunftCombo},
    {2, "zqnSelectionAuskunftDialog", zqnSelectionAuskunftDialog},
    {3, "zqnSelectionAuskunftValueList", zqnSelectionAuskunftValueList},
    // zqnSetSessionDateTypes
    {0, "zqnSetSystemDate", zqnSetSystemDate},
    {1, "zqnSetByDate", zqnSetByDate},
    {2, "zqnSetByDialog", zqnSetByDialog},
    // zqnRightTypeConstants
    {1, "zqnRightView", zqnRightView},
    {2, "zqnRightSave", zqnRightSave},
    {4, "zqnRightDelete", zqnRightDelete},
    {8, "zqnRightPrint", zqnRightPrint},
    // zqnAddresstypeConstants
    {1, "zqnAddresstypeKunde", zqnAddresstypeKunde},
    {2, "zqnAddresstypeKundenAnsprechpartner", zqnAddresstypeKundenAnsprechpartner},
    {4, "zqnAddresstypeKundenZusatzadresse", zqnAddresstypeKundenZusatzadresse},
    {8, "zqnAddresstypeInteressent", zqnAddresstypeInteressent},
    {16, "zqnAddresstypeInteressentenAnsprechpartner", zqnAddresstypeInteressentenAnsprechpartner},
    {32, "zqnAddresstypeLieferant", zqnAddresstypeLieferant},
    {64, "zqnAddresstypeLieferantenAnsprechpartner", zqnAddresstypeLieferantenAnsprechpartner},
    {128, "zqnAddresstypePrivat", zqnAddresstypePrivat},
    {256, "zqnAddresstypePersonal", zqnAddresstypePersonal},
    // zqImageConstants
    {1, "zqImgInteressentenstamm", zqImgInteressentenstamm},
    {2, "zqImgInteressentenAnsprechpartnerM", zqImgInteressentenAnsprechpartnerM},
    {3, "zqImgInteressentenAnsprechpartnerF", zqImgInteressentenAnsprechpartnerF},
    {4, "zqImgKundenstamm", zqImgKundenstamm},
    {5, "zqImgKundenAnsprechpartnerM", zqImgKundenAnsprechpartnerM},
    {6, "zqImgKundenAnsprechpartnerF", zqImgKundenAnsprechpartnerF},
    {7, "zqImgLieferantenstamm", zqImgLieferantenstamm},
    {8, "zqImgLieferantenAnsprechpartnerM", zqImgLieferantenAnsprechpartnerM},
    {9, "zqImgLieferantenAnsprechpartnerF", zqImgLieferantenAnsprechpartnerF},
    {10, "zqImgPrivatadresseM", zqImgPrivatadresseM},
    {11, "zqImgPrivatadresseF", zqImgPrivatadresseF},
    {12, "zqImgPersonalstammM", zqImgPersonalstammM},
    {13, "zqImgPersonalstammF", zqImgPersonalstammF},
    {14, "zqImgZusatzadressen", zqImgZusatzadressen},
    {15, "zqImgPhone", zqImgPhone},
    {16, "zqImgPhoneGrey", zqImgPhoneGrey},
    {17, "zqImgFax", zqImgFax},
    {18, "zqImgFaxGrey", zqImgFaxGrey},
    {19, "zqImgMobilePhone", zqImgMobilePhone},
    {20, "zqImgMobilePhoneGrey", zqImgMobilePhoneGrey},
    {21, "zqImgEMail", zqImgEMail},
    {22, "zqImgEMailGrey", zqImgEMailGrey},
    {23, "zqImgHomepage", zqImgHomepage},
    {24, "zqImgHomepageGrey", zqImgHomepageGrey},
    {25, "zqImgAddressbook", zqImgAddressbook},
    {26, "zqImgSearchContact", zqImgSearchContact},
    {27, "zqImgFavorites", zqImgFavorites},
    {28, "zqImgHyperlinkCursor", zqImgHyperlinkCursor},
    {29, "zqImgInteressentenAnsprechpartnerMFavorite", zqImgInteressentenAnsprechpartnerMFavorite},
    {30, "zqImgInteressentenAnsprechpartnerFFavorite", zqImgInteressentenAnsprechpartnerFFavorite},
    {31, "zqImgKundenAnsprechpartnerMFavorite", zqImgKundenAnsprechpartnerMFavorite},
    {32, "zqImgKundenAnsprechpartnerFFavorite", zqImgKundenAnsprechpartnerFFavorite},
    {33, "zqImgLieferantenAnsprechpartnerMFavorite", zqImgLieferantenAnsprechpartnerMFavorite},
    {34, "zqImgLieferantenAnsprechpartnerFFavorite", zqImgLieferantenAnsprechpartnerFFavorite},
    {35, "zqImgBirthdaycake", zqImgBirthdaycake},
    {36, "zqImgBirthdaycakeGrey", zqImgBirthdaycakeGrey},
    {37, "zqImgHome", zqImgHome},
    {38, "zqImgHomeGrey", zqImgHomeGrey},
    {39, "zqImgArrowUp", zqImgArrowUp},
    {40, "zqImgArrowDown", zqImgArrowDown},
    {41, "zqImgDetails", zqImgDetails},
    {42, "zqImgContractFolder", zqImgContractFolder},
    {43, "zqImgContractNode1", zqImgContractNode1},
    {44, "zqImgContractNode2", zqImgContractNode2},
    {45, "zqImgSearch", zqImgSearch},
    {46, "zqImgSearchCategory", zqImgSearchCategory},
    {47, "zqImgCategory", zqImgCategory},
    // zqnRightIDConstants
    {1, "zqnRightIDWarenwirtschaft", zqnRightIDWarenwirtschaft},
    {2, "zqnRightIDStammdaten", zqnRightIDStammdaten},
    {3, "zqnRightIDKundenstamm", zqnRightIDKundenstamm},
    {4, "zqnRightIDLieferantenstamm", zqnRightIDLieferantenstamm},
    {5, "zqnRightIDArtikelstamm", zqnRightIDArtikelstamm},
    {6, "zqnRightIDVertragsgegenstaende", zqnRightIDVertragsgegenstaende},
    {7, "zqnRightIDPreislisten", zqnRightIDPreislisten},
    {8, "zqnRightIDEinkaufskonditionen", zqnRightIDEinkaufskonditionen},
    {9, "zqnRightIDStuecklisten", zqnRightIDStuecklisten},
    {10, "zqnRightIDTextbausteine", zqnRightIDTextbausteine},
    {11, "zqnRightIDWaehrungen", zqnRightIDWaehrungen},
    {12, "zqnRightIDErloeskontenzuordnung", zqnRightIDErloeskontenzuordnung},
    {13, "zqnRightIDAufwandskontenzuordnung", zqnRightIDAufwandskontenzuordnung},
    {14, "zqnRightIDAuftragsbearbeitung", zqnRightIDAuftragsbearbeitung},
    {15, "zqnRightIDAngebote", zqnRightIDAngebote},
    {16, "zqnRightIDRueckstaende", zqnRightIDRueckstaende},
    {17, "zqnRightIDAuftraege", zqnRightIDAuftraege},
    {18, "zqnRightIDGutschriften", zqnRightIDGutschriften},
    {19, "zqnRightIDLieferscheine", zqnRightIDLieferscheine},
    {20, "zqnRightIDRechnungen", zqnRightIDRechnungen},
    {21, "zqnRightIDFibuUebergabeVK", zqnRightIDFibuUebergabeVK},
    {22, "zqnRightIDVertraege", zqnRightIDVertraege},
    {23, "zqnRightIDVertragsrechnungen", zqnRightIDVertragsrechnungen},
    {24, "zqnRightIDVertragsgutschriften", zqnRightIDVertragsgutschriften},
    {25, "zqnRightIDBestellwesen", zqnRightIDBestellwesen},
    {26, "zqnRightIDBeschaffungsvorschlaege", zqnRightIDBeschaffungsvorschlaege},
    {27, "zqnRightIDBestellungen", zqnRightIDBestellungen},
    {28, "zqnRightIDWareneingaengeBewerten", zqnRightIDWareneingaengeBewerten},
    {29, "zqnRightIDFibuUebergabeEK", zqnRightIDFibuUebergabeEK},
    {30, "zqnRightIDLager", zqnRightIDLager},
    {31, "zqnRightIDDialogbuchungen", zqnRightIDDialogbuchungen},
    {32, "zqnRightIDWareneingaenge", zqnRightIDWareneingaenge},
    {33, "zqnRightIDLagerbewertung", zqnRightIDLagerbewertung},
    {34, "zqnRightIDVerfuegbarkeitsuebersicht", zqnRightIDVerfuegbarkeitsuebersicht},
    {35, "zqnRightIDLagerjournal", zqnRightIDLagerjournal},
    {36, "zqnRightIDInventur", zqnRightIDInventur},
    {37, "zqnRightIDZaehllisten", zqnRightIDZaehllisten},
    {38, "zqnRightIDZaehlmengen", zqnRightIDZaehlmengen},
    {39, "zqnRightIDInventurdifferenzen", zqnRightIDInventurdifferenzen},
    {40, "zqnRightIDVerkaufsstatistik", zqnRightIDVerkaufsstatistik},
    {41, "zqnRightIDProvisionsabrechnung", zqnRightIDProvisionsabrechnung},
    {42, "zqnRightIDExtras", zqnRightIDExtras},
    {43, "zqnRightIDProtokolle", zqnRightIDProtokolle},
    {44, "zqnRightIDExport", zqnRightIDExport},
    {45, "zqnRightIDTools", zqnRightIDTools},
    {46, "zqnRightIDIndividualprogramme", zqnRightIDIndividualprogramme},
    {47, "zqnRightIDEinkaufspreis", zqnRightIDEinkaufspreis},
    {48, "zqnRightIDVerkaufspreis", zqnRightIDVerkaufspreis},
    {49, "zqnRightIDPersonalstamm", zqnRightIDPersonalstamm},
    {50, "zqnRightIDKundenansprechpartner", zqnRightIDKundenansprechpartner},
    {51, "zqnRightIDLieferantenansprechpartner", zqnRightIDLieferantenansprechpartner},
    {52, "zqnRightIDInteressentenstamm", zqnRightIDInteressentenstamm},
    {53, "zqnRightIDInteressentenansprechpartner", zqnRightIDInteressentenansprechpartner},
    {54, "zqnRightIDEinkaufbudgets", zqnRightIDEinkaufbudgets},
};
// clang-format on

TEST(Enumerations, HaveThePublishedValues) {
  for (const Published& member : published) EXPECT_EQ(member.inCode, member.value) << member.name;
}

TEST(Enumerations, NameEachMemberOnce) {
  std::set<std::string> names;
  for (const Published& member : published) EXPECT_TRUE(names.insert(member.name).second) << member.name;
  EXPECT_EQ(names.size(), 278U);
}

TEST(Enumerations, NameTheKindsAsTheDialogsDo) {
  for (const KindInfo& kind : dialogKinds()) {
    const Published& member = published[kind.number - 1];
    EXPECT_EQ(member.value, kind.number);
    EXPECT_EQ(fromUtf8(member.name), String(kind.constant));
  }
}

TEST(Kinds, NameTheTablesOfTheirDropDownsToo) {
  EXPECT_EQ(StringView(findKind(1)->tables), u"Zahlungsarten,Textbausteine,Zahlungsbedingungen");
  EXPECT_EQ(StringView(findKind(2)->tables), u"ZahlungsartenEK,Textbausteine,Zahlungsbedingungen");
  EXPECT_EQ(StringView(findKind(16)->tables), u"Preislistenkopf,Staffelpreise,Kundenstamm");
  EXPECT_EQ(StringView(findKind(25)->tables), u"Kontaktgruppen,Vertriebsstati,Adressherkunft");
}

}  // namespace
}  // namespace zqn::testing
