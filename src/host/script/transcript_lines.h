// SPDX-License-Identifier: MIT
//
// The lines that a transcript has for what happens on a desktop, one function each.
#pragma once

#include "forms/form.h"
#include "forms/message_box.h"
#include "host/script/json_values.h"
#include "host/session/show_call.h"

namespace zqn::script {

/// {"shown":"frmVertriebsstati","caption":"Vertriebsstati"}
Json shownLine(const Form& form);
/// {"closed":"frmVertriebsstati"}
Json closedLine(const Form& form);
/// {"msgbox":{"text":...,"title":...,"buttons":"yesno","icon":"question","default":1}}
Json messageBoxLine(const MessageBox& box);
/// {"popup":"mnuPopup","items":[{"name":...,"caption":...,"enabled":true}]}
Json popupLine(const Menu& menu);
/// {"in":"btnDelete_Click","number":-2147217900,"description":"..."}
Json failureEntry(StringView procedure, const RuntimeError& failure);
/// {"error":...} with such an entry.
Json errorLine(StringView procedure, const RuntimeError& failure);
/// {"passedOver":[...]} with such entries.
Json passedOverLine(Json entries);
/// {"event":"DblClick","result":"10"}
Json eventLine(StringView event, const Variant& result);
/// {"auskunft":{"name":"AUSK_Kundenauskunft","title":"Kundenauskunft"}}
Json auskunftLine(StringView name, StringView title);
/// {"refused":"btnOK is disabled","action":{"click":"btnOK"}}
Json refusedLine(const std::string& reason, const Json& action);

/// {"result":{"return":"10","param":["10"],"allowChanges":true,"dialogResult":{"empty":true}}}
Json resultLine(const host::ShowOutcome& outcome);

}  // namespace zqn::script
