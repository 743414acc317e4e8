// SPDX-License-Identifier: MIT
#include "definitions/zahlungsbedingungen.h"

#include "frontend/basics/bas_basis.h"

namespace zqn {

// The order in which the columns are read and written.
const clsZahlungsbedingungen::NumberField clsZahlungsbedingungen::numberFields[7] = {
    {u"SkontoTage1", &BasisControls::tdbnSkTage1},     {u"SkontoTage2", &BasisControls::tdbnSkTage2},
    {u"SkontoTage3", &BasisControls::tdbnSkTage3},     {u"NettoTage", &BasisControls::tdbnNettoTage},
    {u"SkontoProzent1", &BasisControls::tdbnPercent1}, {u"SkontoProzent2", &BasisControls::tdbnPercent2},
    {u"SkontoProzent3", &BasisControls::tdbnPercent3},
};

void clsZahlungsbedingungen::setUp() {
  BasisControls& c = controls();
  show({&c.tdblShow(),      &c.cmdCancel(),   &c.cmdOK(),        &c.cmdNew(),       &c.cmdDelete(),
        &c.lblKey(),        &c.txtKey(),      &c.lblKeyText(),   &c.txtKeyText(),   &c.lblSkonto(),
        &c.lblSk1(),        &c.lblSk2(),      &c.lblSk3(),       &c.lblSkTage1(),   &c.lblSkTage2(),
        &c.lblSkTage3(),    &c.tdbnSkTage1(), &c.tdbnSkTage2(),  &c.tdbnSkTage3(),  &c.lblPercent1(),
        &c.lblPercent2(),   &c.lblPercent3(), &c.tdbnPercent1(), &c.tdbnPercent2(), &c.tdbnPercent3(),
        &c.tdbnNettoTage(), &c.lblNetto(),    &c.lblNettoTage()});
  c.txtKey().MaxLength(3);
  c.txtKeyText().Enabled(false);
  c.txtKeyText().BackColor(colour::ButtonFace);
  c.frmDialog().Caption(u"Zahlungsbedingungen bearbeiten");
  c.lblKey().Caption(u"Schlüssel");
  c.lblKeyText().Caption(u"Kurztext:");
  c.txtKeyText().Top(3900);
  c.lblKeyText().Top(3930);
  c.lblKeyText().Left(120);
  placeButtons(4440);
}

void clsZahlungsbedingungen::ReadData(ado::Recordset& Recordset) {
  BasisControls& c = controls();
  readText(Recordset, u"ZahlBedSchl", c.txtKey());
  for (const NumberField& field : numberFields) {
    (c.*field.control)().Value(
        basBasis::NullToValue(Recordset.Fields(field.column).Value(), std::int32_t{0}));
  }
  // Last: the numbers have rebuilt the sentence, and what is stored goes over it.
  readText(Recordset, u"Kurztext", c.txtKeyText());
}

void clsZahlungsbedingungen::writeKey(ResumeNext& step, const Ref<ado::Recordset>& row) {
  step([&] { row->Fields(u"ZahlBedSchl").Value(controls().txtKey().Text()); });
}

void clsZahlungsbedingungen::writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) {
  BasisControls& c = controls();
  step([&] { row->Fields(u"Kurztext").Value(c.txtKeyText().Text()); });
  for (const NumberField& field : numberFields) {
    step([&] { row->Fields(field.column).Value((c.*field.control)().Value()); });
  }
}

}  // namespace zqn
