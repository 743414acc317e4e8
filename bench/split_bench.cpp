// SPDX-License-Identifier: MIT
//
// The quantity split with many rows: opening it in a window until it waits, one key press, taking it over.
// Each for 1,000 and for 10,000 rows, medians; the ratio shows that nothing grows with the square.
//
//     QT_QPA_PLATFORM=offscreen split_bench [rounds]
#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "desktop/headless/headless_desktop.h"
#include "desktop/qt/qt_desktop.h"
#include "forms/form.h"
#include "forms/text_box.h"
#include "runtime/convert.h"
#include "split/frm_aufteilung_snch.h"
#include "split/split_text.h"

namespace {

using namespace zqn;
using Clock = std::chrono::steady_clock;

double since(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

std::vector<SplitCells> cellsFor(int rows) {
  std::vector<SplitCells> cells;
  for (int i = 0; i < rows; ++i)
    cells.push_back({u"2,500", u"Stk", u"L-" + numberText(i), u"30.06.2027", u""});
  return cells;
}

/// Shows the form over so many rows on the present desktop; `acts` runs when it waits, then it is closed
/// unless that has happened. Returns the milliseconds until it waited.
double show(Desktop& desktop, const String& text, int rows, const std::function<void(Form&)>& acts) {
  frmAufteilungSNCH form;
  form.Aufteilung = text;
  form.Gmenge = 2.5 * rows + 1;
  form.ME = u"Stk";
  form.Aufteilungsart = std::int32_t{1};
  double waited = 0;
  const auto start = Clock::now();
  desktop.whenIdle([&] {
    if (waited == 0) waited = since(start);
    if (acts) acts(form);
    if (form.Visible()) form.closeBox();
  });
  form.ShowData();
  desktop.whenIdle({});
  return waited;
}

struct Figures {
  std::vector<double> openInWindow, open, key, newRow, takeOver, build;
};

Figures measure(int rows, int rounds) {
  const std::vector<SplitCells> cells = cellsFor(rows);
  const String text = BuildSplit(cells);
  Figures figures;
  for (int round = 0; round < rounds; ++round) {
    {
      qt::QtDesktop desktop;
      const Desktop::Scope scope(desktop);
      figures.openInWindow.push_back(show(desktop, text, rows, {}));
    }
    headless::HeadlessDesktop desktop;
    const Desktop::Scope scope(desktop);
    figures.open.push_back(show(desktop, text, rows, [&](Form& form) {
      auto start = Clock::now();
      desktop.press(KeyStroke::ofCharacter(u'x'));
      figures.newRow.push_back(since(start));
      start = Clock::now();
      desktop.press(KeyStroke::ofCharacter(u'y'));
      figures.key.push_back(since(start));
      desktop.press(KeyStroke::ofCode(key::Down));
      start = Clock::now();
      desktop.press(KeyStroke::ofCode(key::F9));
      figures.takeOver.push_back(since(start));
      if (form.Visible()) std::fprintf(stderr, "the check did not pass\n");
    }));
    const auto start = Clock::now();
    const String built = BuildSplit(cells);
    figures.build.push_back(since(start));
    if (built.size() != text.size()) std::abort();
  }
  return figures;
}

void print(const char* what, const std::vector<double>& few, const std::vector<double>& many) {
  std::printf("%-46s %10.3f %10.3f %8.1f\n", what, median(few), median(many), median(many) / median(few));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  qt::configureApplication(app);
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
  measure(1'000, 1);
  const Figures few = measure(1'000, rounds);
  const Figures many = measure(10'000, rounds);
  std::printf("medians of %d rounds, milliseconds\n", rounds);
  std::printf("%-46s %10s %10s %8s\n", "", "1,000", "10,000", "ratio");
  print("open in a window until it waits", few.openInWindow, many.openInWindow);
  print("open without a window", few.open, many.open);
  print("a key that adds the bottom row", few.newRow, many.newRow);
  print("a further key", few.key, many.key);
  print("F9: check every row, write the text, close", few.takeOver, many.takeOver);
  print("BuildSplit alone", few.build, many.build);
  return 0;
}
