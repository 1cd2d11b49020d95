// An administrator's flow in the whole frame with real key events: the host delivers its
// registered shortcut (Ctrl+A) by number, as the terminal does, and everything else is typed.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
#include "ui/issue_details_dialog.h"
#include "ui/ofs_frame.h"
#include "ui/watch_view_widget.h"

namespace {

TEST(KeyboardFlows, AnAdministratorAddsAnIssueWithTheKeyboard) {
  FakeHost host;
  host.clock = localTime(21, 11, 2026, 36000);
  host.state.userDirectory = getenv("XDG_DATA_HOME");
  host.state.rights.insert("VT: Add OFS Issue");
  initPlugin(host, host.app(), "U1", 3);
  {
    COFSFrame frame(*controlBlock());
    frame.show();
    host.state.events.clear();
    frame.watchView()->onHostHotkey(1500);
    auto* dialog = frame.watchView()->findChild<IssueDetailsDialog*>();
    ASSERT_TRUE(dialog && dialog->isVisible());
    QApplication::setActiveWindow(dialog);
    // Field by field in the order Tab reaches them; the pickers keep today and 00:00:00.
    const std::pair<const char*, const char*> typed[] = {
        {"Exchange", "B"},
        {"Series", "N"},
        {"Symbol Name", "JKL"},
        {"ISIN", "INE123J01019"},
        {"Face Value", "10"},
        {"Tick Size", "0.05"},
        {"Floor Price", "250"},
        {"RMS Price", "260"},
        {"Min Quantity", "10"},
        {"Multiple Quantity", "10"},
        {"OFS Size", "300000"},
        {"Issue Notes", "Promoter sale"},
        {"Prospectus URL", "https://example.in/jkl.pdf"},
        {"Company Name", "JKL Ltd"}};
    for (const auto& [field, text] : typed) {
      QWidget* at = QApplication::focusWidget();
      for (int tabs = 0; tabs < 60 && at && at->accessibleName() != field; ++tabs) {
        QTest::keyClick(at, Qt::Key_Tab);
        at = QApplication::focusWidget();
      }
      ASSERT_TRUE(at && at->accessibleName() == field) << field;
      QTest::keyClicks(at, text);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(host.promptLog.messages(), Lines{});
    Lines added;
    for (const std::string& e : host.state.events)
      if (e.find("om_add_ofs_issue") != std::string::npos) added.push_back(e);
    ASSERT_EQ(added.size(), 1u);
    EXPECT_NE(added[0].find("63001=\"bse_ipo\""), std::string::npos) << added[0];
    EXPECT_NE(added[0].find("10100=\"JKL-NonRetail\""), std::string::npos) << added[0];
    frame.watchView()->destroyDialogs();
  }
  exitPlugin(host);
}

}  // namespace
