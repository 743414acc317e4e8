// SPDX-License-Identifier: MIT
//
// The numbers of ADO under ADO's names. The recordset's members take and give plain numbers, so a form may
// write either:
//
//     rsListe->CursorLocation(adUseServer);  // the same as 2
#pragma once

namespace zqn::ado {

/// Where the rows are kept: by the database, or all of them here.
enum CursorLocationEnum : int { adUseServer = 2, adUseClient = 3 };

/// What a recordset sees of others' changes.
enum CursorTypeEnum : int { adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };

/// How a change meets another one.
enum LockTypeEnum : int { adLockReadOnly = 1, adLockPessimistic = 2, adLockOptimistic = 3 };

/// What State reads.
enum ObjectStateEnum : int { adStateClosed = 0, adStateOpen = 1 };

/// What EditMode reads.
enum EditModeEnum : int { adEditNone = 0, adEditInProgress = 1, adEditAdd = 2 };

/// Where Find goes.
enum SearchDirectionEnum : int { adSearchBackward = -1, adSearchForward = 1 };

/// What a command's text is.
enum CommandTypeEnum : int { adCmdUnspecified = -1, adCmdText = 1 };

/// What a Field's Type reads.
enum DataTypeEnum : int {
  adSmallInt = 2,
  adInteger = 3,
  adDouble = 5,
  adBoolean = 11,
  adVariant = 12,  // an expression: the kind is that of each value
  adBigInt = 20,
  adNumeric = 131,
  adDBTimeStamp = 135,  // declared DATE or DATETIME; its Value is the stored text
  adVarWChar = 202,
  adLongVarWChar = 203
};

}  // namespace zqn::ado
