// SPDX-License-Identifier: MIT
//
// The desk's window with the images that Constants::GetImage gives, each with its number and its constant.
//
//     ImagesWindow(this).exec();
#pragma once

#include <QDialog>

namespace zqn::host {

class ImagesWindow : public QDialog {
 public:
  explicit ImagesWindow(QWidget* parent);
};

}  // namespace zqn::host
