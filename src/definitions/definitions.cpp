// SPDX-License-Identifier: MIT
#include "definitions/definitions.h"

#include <algorithm>

#include "definitions/buchungskreise.h"
#include "definitions/coded_catalogues.h"
#include "definitions/entry_schemes.h"
#include "definitions/group_catalogues.h"
#include "definitions/laendernamen.h"
#include "definitions/payment_types.h"
#include "definitions/shipping_types.h"
#include "definitions/zahlungsbedingungen.h"

namespace zqn {

namespace {

template <class C>
std::unique_ptr<clsBasisDialog> make() {
  return std::make_unique<C>();
}

struct Definition {
  std::int32_t kind;
  std::unique_ptr<clsBasisDialog> (*make)();
};

constexpr Definition definitions[] = {
    {1, make<clsZahlungsart>},
    {2, make<clsZahlungsartEk>},
    {3, make<clsZahlungsbedingungen>},
    {4, make<clsVersandarten>},
    {5, make<clsKundengruppen>},
    {6, make<clsKundengruppeShop>},
    {7, make<clsProvisionsgruppenKunde>},
    {8, make<clsArtikelgruppe>},
    {9, make<clsVerkaufsgruppe>},
    {10, make<clsEinkaufsgruppe>},
    {11, make<clsProvisionsgruppenArtikel>},
    {12, make<clsErloeskontoKennungen>},
    {13, make<clsWEKontoKennungen>},
    {14, make<clsLieferantengruppen>},
    {15, make<clsErfassungsschema>},
    {17, make<clsErfassungsschemaEK>},
    {18, make<clsVersandartenEK>},
    {19, make<clsVertragsarten>},
    {20, make<clsVerkaufsgruppenShop>},
    {22, make<clsMitbewerber>},
    {23, make<clsAdressHerkunft>},
    {24, make<clsLaendernamen>},
    {27, make<clsBuchungskreise>},
    {37, make<clsKontaktgrund>},
};

}  // namespace

std::unique_ptr<clsBasisDialog> makeDefinition(std::int32_t kind) {
  const auto* row = std::ranges::find(definitions, kind, &Definition::kind);
  return row != std::end(definitions) ? row->make() : nullptr;
}

bool hasDefinition(std::int32_t kind) noexcept {
  return std::ranges::find(definitions, kind, &Definition::kind) != std::end(definitions);
}

}  // namespace zqn
