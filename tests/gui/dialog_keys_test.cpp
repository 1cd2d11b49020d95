// Every window of the plug-in: Esc closes it, each control has an accessible name, and each
// field a refusal names takes the focus by that name.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <functional>

#include "orderbook/modify_price_checks.h"
#include "tests/support/order_entry_fixture.h"
#include "ui/basket_dialog.h"
#include "ui/bulk_upload_dialog.h"
#include "ui/issue_details_dialog.h"
#include "ui/market_depth_dialog.h"
#include "ui/modify_price_dialog.h"
#include "ui/order_entry_dialog.h"
#include "ui/order_history_dialog.h"
#include "ui/order_number_dialog.h"
#include "ui/qt_prompt.h"
#include "ui/scrip_properties_dialog.h"

namespace {

struct Made {
  COFSControlBlock& block;
  PromptPort& prompt;
  OrderHistoryDialog& history;
};

struct Window {
  const char* name;
  std::function<QDialog*(Made&)> open;  // makes the window and opens it as the dealer would
  std::vector<std::string> refusalFields;
  friend void PrintTo(const Window& w, std::ostream* os) { *os << w.name; }
};

template <class Dialog>
Dialog* opened(Dialog* dialog, const std::function<void(Dialog&)>& open) {
  open(*dialog);
  return dialog;
}

std::vector<std::string> issueFields() {
  std::vector<std::string> fields(kIssueListLabels.begin(), kIssueListLabels.end());
  for (const IssueTextInfo& text : kIssueTexts) fields.push_back(text.label);
  return fields;
}

const sOFSCol kIssue = nseIssue();
using namespace basket_label;

const Window kWindows[] = {
    {"OrderEntry",
     [](Made& m) {
       return opened<OrderEntryDialog>(new OrderEntryDialog(m.block, m.prompt),
                                       [](auto& d) { d.openNewBid(kIssue); });
     },
     {entry_label::kQuantity, entry_label::kPrice, entry_label::kClientCode}},
    {"Basket",
     [](Made& m) {
       return opened<BasketDialog>(new BasketDialog(m.block), [](auto& d) { d.openOn(&kIssue); });
     },
     {kClientId, kQuantity, kPrice}},
    {"BulkUpload",
     [](Made& m) {
       return opened<BulkUploadDialog>(new BulkUploadDialog(m.block),
                                       [](auto& d) { d.openOn(&kIssue); });
     },
     {}},
    {"IssueDetails",
     [](Made& m) {
       return opened<IssueDetailsDialog>(new IssueDetailsDialog(m.block),
                                         [](auto& d) { d.openOn(nullptr); });
     },
     issueFields()},
    {"ModifyPrice",
     [](Made& m) {
       return opened<ModifyPriceDialog>(new ModifyPriceDialog(m.block),
                                        [](auto& d) { d.present({}, "Modify"); });
     },
     {kModifyPriceLabel, kModifyQuantityLabel}},
    {"OrderHistory",
     [](Made& m) { return opened<QDialog>(&m.history, [](auto& d) { d.show(); }); },
     {}},
    {"OrderNumber",
     [](Made& m) {
       return opened<QDialog>(new OrderNumberDialog(m.history), [](auto& d) { d.show(); });
     },
     {}},
    {"MarketDepth",
     [](Made& m) {
       return opened<MarketDepthDialog>(new MarketDepthDialog(m.block),
                                        [](auto& d) { d.showIssue(kIssue); });
     },
     {}},
    {"ScripProperties",
     [](Made&) {
       return opened<ScripPropertiesDialog>(new ScripPropertiesDialog,
                                            [](auto& d) { d.showIssue(kIssue); });
     },
     {}},
};

// The name a screen reader announces: a field's own, a button's text. (Qt on Linux reads a
// list's current entry as its name, so the accessibility interface proves nothing for lists.)
QString nameOf(const QWidget* w) {
  if (!w->accessibleName().isEmpty()) return w->accessibleName();
  if (auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text().remove('&');
  return {};
}

// The widgets a dealer reaches: not labels, not the parts of a composite control.
bool isControl(const QWidget* w, const QDialog* window) {
  if (w->window() != window || w->focusPolicy() == Qt::NoFocus || w->focusProxy()) return false;
  const QObject* parent = w->parent();
  return !qobject_cast<const QComboBox*>(parent) && !qobject_cast<const QAbstractSpinBox*>(parent);
}

class WindowKeys : public OrderEntryFixture, public testing::WithParamInterface<Window> {
 protected:
  WindowKeys() {
    start();
    history = std::make_unique<OrderHistoryDialog>(block());
    Made made{block(), qtPrompt, *history};
    window = GetParam().open(made);
    if (window != history.get()) owned.reset(window);
    QApplication::setActiveWindow(window);
  }
  ~WindowKeys() override {
    owned.reset();
    history.reset();
  }

  QtPrompt qtPrompt;
  std::unique_ptr<OrderHistoryDialog> history;
  std::unique_ptr<QDialog> owned;
  QDialog* window = nullptr;
};

TEST_P(WindowKeys, EveryControlHasAnAccessibleName) {
  int controls = 0;
  for (QWidget* w : window->findChildren<QWidget*>()) {
    if (!isControl(w, window)) continue;
    ++controls;
    EXPECT_FALSE(nameOf(w).isEmpty()) << w->metaObject()->className();
  }
  EXPECT_GT(controls, 0);
}

TEST_P(WindowKeys, ARefusalsFieldTakesTheFocus) {
  // Whether a field is enabled is the screen's business; here it is which field a label finds.
  for (QWidget* w : window->findChildren<QWidget*>()) w->setEnabled(true);
  for (const std::string& field : GetParam().refusalFields) {
    qtPrompt.focus(field);
    ASSERT_NE(window->focusWidget(), nullptr) << field;
    EXPECT_EQ(window->focusWidget()->accessibleName().toStdString(), field);
  }
}

TEST_P(WindowKeys, EscapeClosesTheWindow) {
  ASSERT_TRUE(window->isVisible());
  QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Windows, WindowKeys, testing::ValuesIn(kWindows),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
