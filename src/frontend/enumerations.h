// SPDX-License-Identifier: MIT
//
// The enumerations of the merchandise-management system, published for hosts:
//
//     dialog.Show(zqnCommonDialogVertriebsStati, param);
//
// This library itself uses the kinds of dialogs, the images, and the scopes of settings, which stand with the
// session (contract/session.h).
#pragma once

#include <cstdint>

#include "contract/session.h"

namespace zqn {

/// What ORBDialog::Show opens.
enum zqnCommonDialogConstants : std::int32_t {
  zqnCommonDialogZahlungsarten = 1,
  zqnCommonDialogZahlungsartenEK = 2,
  zqnCommonDialogZahlungsbedingungen = 3,
  zqnCommonDialogVersandarten = 4,
  zqnCommonDialogKundengruppen = 5,
  zqnCommonDialogKundengruppeShop = 6,
  zqnCommonDialogProvisionsgruppenKunde = 7,
  zqnCommonDialogArtikelgruppe = 8,
  zqnCommonDialogVerkaufsgruppe = 9,
  zqnCommonDialogEinkaufsgruppe = 10,
  zqnCommonDialogProvisionsgruppenArtikel = 11,
  zqnCommonDialogErlöskontoKennungen = 12,
  zqnCommonDialogWEKontoKennungen = 13,
  zqnCommonDialogLieferantengruppen = 14,
  zqnCommonDialogErfassungsschema = 15,
  zqnCommonDialogPreislisten = 16,
  zqnCommonDialogErfassungsschemaEK = 17,
  zqnCommonDialogVersandartenEK = 18,
  zqnCommonDialogVertragsarten = 19,
  zqnCommonDialogVerkaufsgruppeShop = 20,
  zqnCommonDialogVertriebsStati = 21,
  zqnCommonDialogMitbewerber = 22,
  zqnCommonDialogAdressHerkunft = 23,
  zqnCommonDialogLaendernamen = 24,
  zqnCommonDialogCRMKategorien = 25,
  zqnCommonDialogSelektionskriterienVertrag = 26,
  zqnCommonDialogBuchungskreise = 27,
  zqnCommonDialogSelectionListValues = 28,
  zqnCommonDialogOfferTemplates = 29,
  zqnCommonDialogSaveOfferTemplate = 30,
  zqnCommonDialogOMRCodes = 31,
  zqnCommonDialogGruendeVerlorenKunde = 32,
  zqnCommonDialogGruendeVerlorenVertrag = 33,
  zqnCommonDialogAufteilungSNCH = 34,
  zqnCommonDialogKeywords = 35,
  zqnCommonDialogVertriebsStatusWechsel = 36,
  zqnCommonDialogKontaktGruende = 37,
};

/// Views of the calendar.
enum zqnCalendarConstants : std::int32_t {
  zqModeCalendar = 0,
  zqModePlaner = 1,
  zqModeRessources = 2,
};

/// How a form is shown.
enum zqnFormShowConstants : std::int32_t {
  zqnFormShowModeless = 0,
  zqnFormShowModal = 1,
};

/// Forms of address.
enum zqnAnredeConstants : std::int32_t {
  zqnFirma = 0,
  zqnHerr = 1,
  zqnFrau = 2,
};

/// Order of a column of an information dialog.
enum zqnAuskunftSortConstants : std::int32_t {
  zqnAuskunftSortUnsorted = 0,
  zqnAuskunftSortAscending = 1,
  zqnAuskunftSortDescending = 2,
};

/// How an information dialog was closed.
enum zqnAuskunftResultConstants : std::int32_t {
  zqnAuskunftResultNothingSelected = 0,
  zqnAuskunftResultSomethingSelected = 1,
};

/// Items of a popup menu.
enum zqnPopupConstants : std::int32_t {
  zqnPopupItem = 0,
  zqnPopupItemWithSubitem = 1,
  zqnPopupSubitem = 2,
};

/// Buttons, icon and default button of a message; added up.
enum zqnErrorBoxConstants : std::int32_t {
  zqnErrorBoxOKOnly = 0,
  zqnErrorBoxOKCancel = 1,
  zqnErrorBoxCritical = 16,
  zqnErrorBoxQuestion = 32,
  zqnErrorBoxExclamation = 48,
  zqnErrorBoxInformation = 64,
  zqnErrorBoxDefaultButton1 = 0,
  zqnErrorBoxDefaultButton2 = 256,
};

/// Answers to a message.
enum zqnErrorBoxResultConstants : std::int32_t {
  zqnErrorBoxResultOK = 1,
  zqnErrorBoxResultCancel = 2,
};

/// Kinds of connection.
enum zqnConnectionTypeConstants : std::int32_t {
  zqnConnectionTypeNotConnected = 0,
  zqnConnectionTypeMSAccess = 1,
  zqnConnectionTypeMSSQLServer = 2,
};

/// Kinds of database.
enum zqnDataSourceTypeConstants : std::int32_t {
  zqnDataSourceTypeMSAccess = 1,
  zqnDataSourceTypeMSSQLServer = 2,
};

/// Charts of the statistics.
enum zqnStatistikChartTypeConstants : std::int32_t {
  zqnStatistikChartTypeDefault = 0,
  zqnStatistikChartTypeTabelle = 1,
  zqnStatistikChartTypeBalkendiagramm = 2,
  zqnStatistikChartTypeKreisdiagramm = 3,
};

/// Periods of the statistics.
enum zqnStatistikPeriodisierungConstants : std::int32_t {
  zqnStatistikPeriodisierungMonat = 1,
  zqnStatistikPeriodisierungWoche = 2,
};

/// Business years of the statistics.
enum zqnStatistikWirtschaftsjahrConstants : std::int32_t {
  zqnStatistikAktuellesWirtschaftsjahr = 0,
};

/// Where a bill of materials is resolved.
enum zqnStuecklistenaufösungConstants : std::int32_t {
  zqnKomplettAuflösen = 0,
  zqnInKundenauftragAuflösen = 1,
  zqnInBestellungAuflösen = 2,
};

/// What is done with a user.
enum zqnUserConstants : std::int32_t {
  zqnUserAdd = 1,
  zqnUserUpdate = 2,
  zqnUserAddUpdate = 3,
};

/// The programs that a user may enter; added up.
enum zqnAppAccessConstants : std::int32_t {
  zqnAppAccessEveryone = 0,
  zqnAppAccessVerkauf = 1,
  zqnAppAccessEinkauf = 2,
  zqnAppAccessLager = 4,
  zqnAppAccessVertrag = 8,
  zqnAppAccessAdmin = 536870912,
};

/// How a price is rounded.
enum zqnRundungsartConstants : std::int32_t {
  zqnKaufmaennischRunden = 0,
  zqnImmerAufrunden = 1,
  zqnImmerAbrunden = 2,
};

/// What is handed to the accounts.
enum zqnFibuUebergabeConstants : std::int32_t {
  zqnRechnungen = 1,
  zqnGutschriften = 2,
  zqnDebitorenSollStellung = 3,
  zqnEingangsrechnungen = 4,
  zqnKreditorenHabenStellung = 4,
};

/// What the conversion of units lets a person do; added up.
enum zqUmrechDialogConstants : std::int32_t {
  zqUmrechDialogAllowNothing = 0,
  zqUmrechDialogAllowEdit = 1,
  zqUmrechDialogAllowChangeMEVon = 4,
  zqUmrechDialogAllowChangeMENach = 8,
  zqUmrechDialogAllowCancel = 32,
  zqUmrechDialogDefaultSettings = 255,
};

/// How a conversion of units ended.
enum zqUmrechResultConstants : std::int32_t {
  zqUmrechResultOK = 0,
  zqUmrechResultUserAbort = 10,
  zqUmrechResultNotFound = 20,
  zqUmrechResultError = 99,
};

/// Prices with or without tax.
enum zqPLUPreistypConstants : std::int32_t {
  zqPLUDefault = 0,
  zqPLUNettopreis = 1,
  zqPLUBruttopreis = 2,
};

/// Where a price was found; added up.
enum zqPLUResultConstants : std::int32_t {
  zqPLUFoundNothing = 0,
  zqPLUFoundSonderpreis = 1,
  zqPLUFoundSonderVKGRabatt = 2,
  zqPLUFoundListenpreis = 4,
  zqPLUFoundListenVKGRabatt = 8,
  zqPLUFoundartikelpreis = 16,
  zqPLUFoundArtikelVKGRabatt = 32,
  zqPLUFoundAktionspreis = 64,
  zqPLUFoundAktionsVKGRabatt = 128,
  zqPLUError = 1024,
};

/// Which of several prices counts.
enum zqPLUPreisfindungsart : std::int32_t {
  zqPLUPreisfindungVorteilhaft = 0,
  zqPLUPreisfindungHierarchisch = 1,
};

/// Which of several discounts counts.
enum zqPLURabattfindungsart : std::int32_t {
  zqPLURabattfindungVorteilhaft = 0,
  zqPLURabattfindungHierarchisch = 1,
};

/// How several discounts add up.
enum zqPLURabattberechnung : std::int32_t {
  zqPLURabattberechnungDefault = -1,
  zqPLURabattberechnungAdditiv = 0,
  zqPLURabattberechnungKette = 1,
};

/// What stands in for a price.
enum zqPLUErsetzePreis : std::int32_t {
  zqPLUErsetzePreisNicht = 0,
  zqPLUErsetzePreisDurchArtikelpreis = 1,
  zqPLUErsetzePreisDurchListenpreis = 2,
  zqPLUErsetzePreisDurchListenArtikelpreis = 3,
};

/// Information dialogs.
enum zqnDiAusConstants : std::int32_t {
  zqnDiAusArtikel = 10,
  zqnDiAusKunden = 20,
  zqnDiAusLieferanten = 30,
  zqnDiAusAngebote = 40,
  zqnDiAusAuftraege = 50,
  zqnDiAusLieferscheine = 60,
  zqnDiAusRechnungen = 70,
  zqnDiAusGutschriften = 80,
  zqnDiAusBestellungen = 90,
  zqnDiAusPositionen = 10,
  zqnDiAusGeneric = 999,
};

/// Types of a criterion.
enum zqnSelectionDataTypes : std::int32_t {
  zqnSelectionDataTypeText = 0,
  zqnSelectionDataTypeNumeric = 1,
  zqnSelectionDataTypeDate = 2,
  zqnSelectionDataTypeTextSearch = 3,
  zqnSelectionDataTypeDateConv102 = 4,
  zqnSelectionDataTypeKeyword = 8,
};

/// What a selection gives back.
enum zqnSelectionReturnTypes : std::int32_t {
  zqnSelectionReturnTypeSQL = 0,
  zqnSelectionReturnTypeText = 1,
};

/// Backgrounds.
enum zqnBackStyleConstants : std::int32_t {
  zqnBackStyleTransparent = 0,
  zqnBackStyleOpaque = 1,
};

/// How a criterion offers its values.
enum zqnSelectionAuskunftTypes : std::int32_t {
  zqnSelectionAuskunftNone = 0,
  zqnSelectionAuskunftCombo = 1,
  zqnSelectionAuskunftDialog = 2,
  zqnSelectionAuskunftValueList = 3,
};

/// Where the day of the session comes from.
enum zqnSetSessionDateTypes : std::int32_t {
  zqnSetSystemDate = 0,
  zqnSetByDate = 1,
  zqnSetByDialog = 2,
};

/// What a right allows; added up.
enum zqnRightTypeConstants : std::int32_t {
  zqnRightView = 1,
  zqnRightSave = 2,
  zqnRightDelete = 4,
  zqnRightPrint = 8,
};

/// Kinds of addresses; added up.
enum zqnAddresstypeConstants : std::int32_t {
  zqnAddresstypeKunde = 1,
  zqnAddresstypeKundenAnsprechpartner = 2,
  zqnAddresstypeKundenZusatzadresse = 4,
  zqnAddresstypeInteressent = 8,
  zqnAddresstypeInteressentenAnsprechpartner = 16,
  zqnAddresstypeLieferant = 32,
  zqnAddresstypeLieferantenAnsprechpartner = 64,
  zqnAddresstypePrivat = 128,
  zqnAddresstypePersonal = 256,
};

/// The pictures of Constants::GetImage: the number of the picture in the list, from 1.
enum zqImageConstants : std::int32_t {
  zqImgInteressentenstamm = 1,
  zqImgInteressentenAnsprechpartnerM = 2,
  zqImgInteressentenAnsprechpartnerF = 3,
  zqImgKundenstamm = 4,
  zqImgKundenAnsprechpartnerM = 5,
  zqImgKundenAnsprechpartnerF = 6,
  zqImgLieferantenstamm = 7,
  zqImgLieferantenAnsprechpartnerM = 8,
  zqImgLieferantenAnsprechpartnerF = 9,
  zqImgPrivatadresseM = 10,
  zqImgPrivatadresseF = 11,
  zqImgPersonalstammM = 12,
  zqImgPersonalstammF = 13,
  zqImgZusatzadressen = 14,
  zqImgPhone = 15,
  zqImgPhoneGrey = 16,
  zqImgFax = 17,
  zqImgFaxGrey = 18,
  zqImgMobilePhone = 19,
  zqImgMobilePhoneGrey = 20,
  zqImgEMail = 21,
  zqImgEMailGrey = 22,
  zqImgHomepage = 23,
  zqImgHomepageGrey = 24,
  zqImgAddressbook = 25,
  zqImgSearchContact = 26,
  zqImgFavorites = 27,
  zqImgHyperlinkCursor = 28,
  zqImgInteressentenAnsprechpartnerMFavorite = 29,
  zqImgInteressentenAnsprechpartnerFFavorite = 30,
  zqImgKundenAnsprechpartnerMFavorite = 31,
  zqImgKundenAnsprechpartnerFFavorite = 32,
  zqImgLieferantenAnsprechpartnerMFavorite = 33,
  zqImgLieferantenAnsprechpartnerFFavorite = 34,
  zqImgBirthdaycake = 35,
  zqImgBirthdaycakeGrey = 36,
  zqImgHome = 37,
  zqImgHomeGrey = 38,
  zqImgArrowUp = 39,
  zqImgArrowDown = 40,
  zqImgDetails = 41,
  zqImgContractFolder = 42,
  zqImgContractNode1 = 43,
  zqImgContractNode2 = 44,
  zqImgSearch = 45,
  zqImgSearchCategory = 46,
  zqImgCategory = 47,
};

/// The rights that a user can hold.
enum zqnRightIDConstants : std::int32_t {
  zqnRightIDWarenwirtschaft = 1,
  zqnRightIDStammdaten = 2,
  zqnRightIDKundenstamm = 3,
  zqnRightIDLieferantenstamm = 4,
  zqnRightIDArtikelstamm = 5,
  zqnRightIDVertragsgegenstaende = 6,
  zqnRightIDPreislisten = 7,
  zqnRightIDEinkaufskonditionen = 8,
  zqnRightIDStuecklisten = 9,
  zqnRightIDTextbausteine = 10,
  zqnRightIDWaehrungen = 11,
  zqnRightIDErloeskontenzuordnung = 12,
  zqnRightIDAufwandskontenzuordnung = 13,
  zqnRightIDAuftragsbearbeitung = 14,
  zqnRightIDAngebote = 15,
  zqnRightIDRueckstaende = 16,
  zqnRightIDAuftraege = 17,
  zqnRightIDGutschriften = 18,
  zqnRightIDLieferscheine = 19,
  zqnRightIDRechnungen = 20,
  zqnRightIDFibuUebergabeVK = 21,
  zqnRightIDVertraege = 22,
  zqnRightIDVertragsrechnungen = 23,
  zqnRightIDVertragsgutschriften = 24,
  zqnRightIDBestellwesen = 25,
  zqnRightIDBeschaffungsvorschlaege = 26,
  zqnRightIDBestellungen = 27,
  zqnRightIDWareneingaengeBewerten = 28,
  zqnRightIDFibuUebergabeEK = 29,
  zqnRightIDLager = 30,
  zqnRightIDDialogbuchungen = 31,
  zqnRightIDWareneingaenge = 32,
  zqnRightIDLagerbewertung = 33,
  zqnRightIDVerfuegbarkeitsuebersicht = 34,
  zqnRightIDLagerjournal = 35,
  zqnRightIDInventur = 36,
  zqnRightIDZaehllisten = 37,
  zqnRightIDZaehlmengen = 38,
  zqnRightIDInventurdifferenzen = 39,
  zqnRightIDVerkaufsstatistik = 40,
  zqnRightIDProvisionsabrechnung = 41,
  zqnRightIDExtras = 42,
  zqnRightIDProtokolle = 43,
  zqnRightIDExport = 44,
  zqnRightIDTools = 45,
  zqnRightIDIndividualprogramme = 46,
  zqnRightIDEinkaufspreis = 47,
  zqnRightIDVerkaufspreis = 48,
  zqnRightIDPersonalstamm = 49,
  zqnRightIDKundenansprechpartner = 50,
  zqnRightIDLieferantenansprechpartner = 51,
  zqnRightIDInteressentenstamm = 52,
  zqnRightIDInteressentenansprechpartner = 53,
  zqnRightIDEinkaufbudgets = 54,
};

}  // namespace zqn
