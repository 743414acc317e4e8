// SPDX-License-Identifier: MIT
//
// The functions behind the kinds of lines (line_kinds.h), under the names of the lines.
#pragma once

#include "host/script/arguments.h"
#include "host/script/line_context.h"

namespace zqn::script {

namespace user {
void click(const LineContext& context, const Arguments& line);
void focus(const LineContext& context, const Arguments& line);
void type(const LineContext& context, const Arguments& line);
void key(const LineContext& context, const Arguments& line);
void select(const LineContext& context, const Arguments& line);
void dblclick(const LineContext& context, const Arguments& line);
void mouse(const LineContext& context, const Arguments& line);
void drag(const LineContext& context, const Arguments& line);
void menu(const LineContext& context, const Arguments& line);
void close(const LineContext& context, const Arguments& line);
void answer(const LineContext& context, const Arguments& line);
void wait(const LineContext& context, const Arguments& line);
}  // namespace user

namespace probe {
void get(const LineContext& context, const Arguments& line);
void list(const LineContext& context, const Arguments& line);
void dump(const LineContext& context, const Arguments& line);
void sql(const LineContext& context, const Arguments& line);
void settings(const LineContext& context, const Arguments& line);
void statements(const LineContext& context, const Arguments& line);
void passedOver(const LineContext& context, const Arguments& line);
void screenshot(const LineContext& context, const Arguments& line);
}  // namespace probe

namespace outside {
void exec(const LineContext& context, const Arguments& line);
void setting(const LineContext& context, const Arguments& line);
void auskunft(const LineContext& context, const Arguments& line);
void fail(const LineContext& context, const Arguments& line);
void clipboard(const LineContext& context, const Arguments& line);
}  // namespace outside

}  // namespace zqn::script
