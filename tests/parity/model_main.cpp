// SPDX-License-Identifier: MIT
//
// Walks at random through the model of the generic form, and has the scripted user do the same on the form
// itself: the transcript must be the one that the model foretells.
//
//     parity_model --seeds 1:200
//
// Exit status 0 when the form does as the model says, 1 when it does something else, 2 for wrong usage.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iostream>

#include "host/database/schema/schema.h"
#include "parity/generic_model.h"
#include "parity/run.h"

namespace zqn::parity {

namespace {

using Json = script::Json;
using Focus = GenericModel::Focus;

struct Kind {
  int number;
  CatalogueSetting setting;
};

const std::array<Kind, 9> kinds{{
    {7,
     {"ProvisionsgruppenKunde", "PRVGruppeKunde", "Bezeichnung", "Provisionsgruppen bearbeiten",
      "Prov.gruppe", 30, true}},
    {11,
     {"ProvisionsgruppenArtikel", "PRVGruppeArtikel", "Bezeichnung", "Provisionsgruppen bearbeiten",
      "Prov.gruppe", 30, true}},
    {12,
     {"Erlöskontokennungen", "ErlöskontoKennung", "Langtext", "Erlöskontokennungen bearbeiten",
      "Erlöskonto-Kennung", 30}},
    {13,
     {"Aufwandskontokennungen", "AufwandskontoKennung", "Langtext", "Aufwandskontokennungen bearbeiten",
      "Aufw.kto-Kennung", 30}},
    {14,
     {"Lieferantengruppen", "Lieferantengruppe", "Langtext", "Lieferantengruppen bearbeiten", "Lief.gruppe",
      50, true}},
    {19, {"Vertragsarten", "Vertragsart", "Kurztext", "Vertragsarten bearbeiten", "Vertragsart", 30, true}},
    {22, {"Mitbewerber", "Mitbewerber", "Bezeichnung", "Mitbewerber bearbeiten", "Schlüssel", 50, true}},
    {23, {"Adressherkunft", "Herkunft", "Bezeichnung", "Adressherkunft bearbeiten", "Schlüssel", 50, true}},
    {37, {"KontaktGruende", "GrundSchl", "Text", "Kontaktgrund bearbeiten", "Schlüssel", 50, true}},
}};

/// A clerk who does whatever comes into his head, among what the model can foretell.
class Walk {
 public:
  Walk(GenericModel& model, Random& chance) : model_(model), chance_(chance) {}

  void run(int steps) {
    model_.open();
    model_.look();
    for (; steps > 0 && model_.isOpen(); --steps) {
      if (model_.isAsking()) {
        model_.answer(chance_.percent(75));
      } else if (chance_.percent(12)) {
        others();
      } else {
        act(steps < 5);
      }
      if (model_.isOpen() && !model_.isAsking() && chance_.percent(70)) model_.look();
      if (model_.isOpen() && !model_.isAsking() && chance_.percent(8)) model_.lookAtList();
    }
    if (model_.isAsking()) model_.answer(false);
    if (model_.isOpen()) model_.closeBox();
    model_.lookAtTable();
  }

  std::string anyKey() {
    static constexpr std::array keys{"A", "a", "B", "AB", "ab ", "C1", "-", "Z", "10", "NEU", "neu"};
    return chance_.oneOf(keys);
  }

 private:
  std::string anyWords() {
    static constexpr std::array words{"Eins", "zwei", "Drei und vier", "x",
                                      "ein langer Text, der bis an die Grenze des Feldes und weiter reicht"};
    return chance_.oneOf(words);
  }

  void others() {
    const auto& rows = model_.rows();
    const int what = chance_.between(0, 9);
    const std::string key = anyKey();
    if (what < 3 && !model_.hasGoneRows()) return model_.othersInsert({key, "von anderen"});
    if (rows.empty()) return;
    const std::string there = chance_.oneOf(rows).key;
    if (what < 6 && !model_.isMarked(there)) return model_.othersDelete(there);
    if (what < 9) return model_.othersRename(there, anyWords());
    model_.nextUpdateFails();
  }

  void act(bool mayEnd) {
    const Focus focus = model_.focus();
    const bool inField = focus == Focus::Key || focus == Focus::Text;
    const int what = chance_.between(0, 99);
    if (what < 15 && model_.listedRows() > 0) return model_.selectRow(anyRow());
    if (what < 18 && model_.listedRows() > 0 && (mayEnd || model_.staysOnPick()))
      return model_.doubleClickRow(anyRow());
    if (what < 34) return model_.clickField(chance_.percent(60) ? Focus::Key : Focus::Text);
    if (what < 56 && model_.canType()) {
      if (chance_.percent(10)) return model_.pressBackspace();
      return model_.type(focus == Focus::Key ? anyKey() : anyWords());
    }
    if (what < 60) return model_.pressTab(true);
    if (what < 68) return model_.pressTab(false);
    if (what < 70 && ((focus != Focus::List && focus != Focus::Cancel) || mayEnd)) return model_.pressEnter();
    if (what < 74) return model_.clickButton(Focus::New);
    if (what < 77) return model_.pressNewKey();
    if (what < 83 && model_.canPress(Focus::Ok)) return model_.clickButton(Focus::Ok);
    if (what < 89 && (focus != Focus::List || mayEnd)) return model_.pressSaveKey();
    if (what < 92) return model_.clickButton(Focus::Delete);
    if (what < 95 && focus == Focus::List) return model_.pressDeleteOnList(chance_.percent(50));
    if (what < 96 && !inField && focus != Focus::List && (mayEnd || focus != Focus::Cancel))
      return model_.pressSpace();
    if (what < 98 && focus == Focus::List && model_.listedRows() > 1) return pressArrow();
    if (!mayEnd) return;
    static constexpr std::array ends{"F10", "Escape"};
    if (chance_.percent(50)) return model_.pressCloseKey(chance_.oneOf(ends));
    model_.clickButton(Focus::Cancel);
  }

  int anyRow() { return chance_.between(0, model_.listedRows() - 1); }

  /// To another row: what an arrow at the end of a list raises is the list's own affair.
  void pressArrow() {
    const int last = model_.listedRows() - 1;
    const bool upwards = model_.markedRow() == last || (model_.markedRow() > 0 && chance_.percent(50));
    const bool far = chance_.percent(30);
    model_.pressOnList(upwards ? (far ? "Home" : "Up") : (far ? "End" : "Down"));
  }

  GenericModel& model_;
  Random& chance_;
};

struct Told {
  Case given;
  std::vector<Json> transcript;
  std::string returned;
};

Told tell(std::uint64_t seed) {
  Random chance(seed);
  const Kind& kind = kinds[seed % kinds.size()];
  CatalogueSetting setting = kind.setting;
  setting.multiselect = chance.percent(25);
  setting.allowsChanges = chance.percent(90);
  std::vector<GenericModel::Row> rows;
  static constexpr std::array keys{"A", "AB", "B", "C1", "D", "M", "Z", "-", "10"};
  for (const char* const key : keys) {
    if (!chance.percent(chance.percent(20) ? 0 : 60)) continue;
    rows.push_back(
        {key, chance.percent(20) ? std::nullopt : std::optional<std::string>("Text zu " + std::string(key))});
  }
  static constexpr std::array asked{"", "A", "a", "B", "ZZ", "-", "10", " "};
  const std::string key = chance.oneOf(asked);
  GenericModel model(setting, rows, key);
  Walk(model, chance).run(chance.between(5, 40));
  std::vector<std::string> arguments{"show",     std::to_string(kind.number),
                                     "--params", Json::array({key}).dump(),
                                     "--user",   "anna",
                                     "--today",  "2026-11-21"};
  if (setting.multiselect) arguments.emplace_back("--multiselect");
  if (!setting.allowsChanges) {
    arguments.emplace_back("--set");
    arguments.emplace_back("ZQNComDlg/AdminsOnly=1");
    arguments.emplace_back("--set");
    arguments.emplace_back("ZQNComDlg/AllowVPSave=");
  }
  return {{arguments, model.script()}, model.transcript(), model.returned()};
}

/// "" when the form did as the model said.
std::string difference(const Told& told, const Outcome& outcome) {
  const std::vector<std::string> lines = outcome.whole();
  for (std::size_t i = 0; i < std::max(lines.size(), told.transcript.size() + 1); ++i) {
    const std::string real = i < lines.size() ? lines[i] : "nothing more";
    if (i == told.transcript.size()) {
      const Json last = Json::parse(real, nullptr, false);
      if (last.is_object() && last.contains("result") && last["result"]["return"] == told.returned) continue;
      return "model: returns " + told.returned + "\nform:  " + real;
    }
    const std::string expected = i < told.transcript.size() ? told.transcript[i].dump() : "nothing more";
    if (real != expected)
      return (i > 0 ? "after: " + lines[i - 1] + "\n" : "") + "model: " + expected + "\nform:  " + real;
  }
  return "";
}

int run(const std::string& seeds, int limit) {
  std::uint64_t first = 1, count = 100;
  char colon = ':';
  std::istringstream range(seeds);
  if (!(range >> first >> colon >> count) || colon != ':') throw std::runtime_error("--seeds is FROM:COUNT");
  const Stage stage;
  const DesktopEntry& headless = *findDesktop("headless");
  const Runner runner(stage, limit);
  std::uint64_t lines = 0, found = 0;
  for (std::uint64_t seed = first; seed < first + count; ++seed) {
    const Told told = tell(seed);
    lines += told.given.lines.size();
    const std::string differs = difference(told, runner.replay(headless, told.given));
    if (differs.empty()) continue;
    ++found;
    std::cout << "\n"
              << scriptText(told.given, {"seed " + std::to_string(seed)}) << differs << "\n"
              << std::flush;
  }
  std::cout << count << " walks with " << lines << " lines: " << found << " differ from the model\n";
  return found > 0 ? 1 : 0;
}

}  // namespace

}  // namespace zqn::parity

int main(int argc, char** argv) {
  std::string seeds = "1:100";
  int limit = 30;
  CLI::App app("Holds the generic form against a model of it");
  app.add_option("--seeds", seeds, "A walk for each of these seeds")->option_text("FROM:COUNT");
  app.add_option("--limit", limit, "Seconds after which a run hangs");
  CLI11_PARSE(app, argc, argv);
  try {
    return zqn::parity::run(seeds, limit);
  } catch (const std::exception& failure) {
    std::cerr << "parity_model: " << failure.what() << "\n";
    return 2;
  }
}
