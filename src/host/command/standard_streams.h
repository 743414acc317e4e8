// SPDX-License-Identifier: MIT
//
// Standard input and output of the process, so that nothing fails unseen: a stream that is closed, a disk that
// is full, a reader that is gone.
//
//     prepareStandardStreams();
//     requireOutput();
//     std::cout << table;
//     requireWritten();
#pragma once

namespace zqn::host {

/// First thing in a process. A stream that is closed stays so: no file that is opened later takes its place. A
/// failure of std::cin and std::cout is their badbit from now on.
void prepareStandardStreams();

/// CommandFailure (WrongUsage) when standard input is closed.
void requireInput();
/// CommandFailure (CannotOpen) when standard output is closed.
void requireOutput();
/// CommandFailure (CannotOpen) when something that was written to std::cout has not arrived.
void requireWritten();

}  // namespace zqn::host
