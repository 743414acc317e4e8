// SPDX-License-Identifier: MIT
//
// The functions behind the kinds of lines (line_kinds.h), under the names of the lines.
#pragma once

#include "host/script/arguments.h"
#include "host/script/scene.h"

namespace zqn::script {

namespace user {
void click(const Scene& scene, const Arguments& line);
void focus(const Scene& scene, const Arguments& line);
void type(const Scene& scene, const Arguments& line);
void key(const Scene& scene, const Arguments& line);
void select(const Scene& scene, const Arguments& line);
void dblclick(const Scene& scene, const Arguments& line);
void mouse(const Scene& scene, const Arguments& line);
void drag(const Scene& scene, const Arguments& line);
void menu(const Scene& scene, const Arguments& line);
void close(const Scene& scene, const Arguments& line);
void answer(const Scene& scene, const Arguments& line);
void wait(const Scene& scene, const Arguments& line);
}  // namespace user

namespace probe {
void get(const Scene& scene, const Arguments& line);
void list(const Scene& scene, const Arguments& line);
void dump(const Scene& scene, const Arguments& line);
void sql(const Scene& scene, const Arguments& line);
void settings(const Scene& scene, const Arguments& line);
void statements(const Scene& scene, const Arguments& line);
void screenshot(const Scene& scene, const Arguments& line);
}  // namespace probe

namespace world {
void exec(const Scene& scene, const Arguments& line);
void setting(const Scene& scene, const Arguments& line);
void auskunft(const Scene& scene, const Arguments& line);
void fail(const Scene& scene, const Arguments& line);
}  // namespace world

}  // namespace zqn::script
