// SPDX-License-Identifier: MIT
#include "host/information/auskunft.h"

#include "contract/auskunft.h"
#include "contract/object_factory.h"
#include "forms/names.h"
#include "host/information/auskunft_form.h"

namespace zqn::host {

namespace {

class Auskunft : public AuskunftObject {
 public:
  explicit Auskunft(Ref<ado::Connection> connection) : connection_(std::move(connection)) {}

  void Show(const Ref<Session>&, StringView Name, StringView Title) override {
    subject_ = auskunftSubject(Name);
    if (subject_ == nullptr) throw RuntimeError(error::InvalidProcedureCall);
    frmAuskunft form(*subject_, connection_);
    form.Caption(Title);
    for (const AuskunftItem& each : PopupItems.items()) {
      if (sameName(each.key, u"Take")) form.take(each.caption);
    }
    form.Show();
    value_ = form.value();
  }
  std::int32_t Result() const override { return value_.isEmpty() ? 0 : 1; }
  Variant ResultDataItems(StringView Name) const override {
    if (value_.isEmpty() || !sameName(Name, subject_->item)) throw RuntimeError(error::ItemNotFound);
    return value_;
  }

 private:
  Ref<ado::Connection> connection_;
  const AuskunftSubject* subject_ = nullptr;
  Variant value_;
};

}  // namespace

void offerAuskunft(Ref<ado::Connection> connection) {
  ObjectFactory::current().offer(u"Kalmera.AuskunftObject", [connection = std::move(connection)] {
    return std::make_shared<Auskunft>(connection);
  });
}

}  // namespace zqn::host
