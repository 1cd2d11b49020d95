#include "ui/selected_issue_pane.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "plugin/control_block.h"
#include "ui/demand_chart.h"

namespace {

// Facts stand in pairs of label and value, this many pairs a row.
constexpr int kFactPairsPerRow = 2;

}  // namespace

SelectedIssuePane::SelectedIssuePane(COFSControlBlock& block, QWidget* parent)
    : QWidget(parent), block_(block), core_(block) {
  setObjectName("selectedIssue");
  heading_ = new QLabel(this);
  QFont bold = heading_->font();
  bold.setBold(true);
  heading_->setFont(bold);
  factsGrid_ = new QGridLayout;
  factsGrid_->setHorizontalSpacing(12);
  factsGrid_->setVerticalSpacing(2);
  follow_ = new QPushButton("Follow Bids", this);
  follow_->setAccessibleName("Follow the bids of the selected issue");
  chart_ = new DemandChart(this);
  chart_->setMinimumHeight(120);

  auto* facts = new QVBoxLayout;
  facts->addWidget(heading_);
  facts->addLayout(factsGrid_);
  facts->addWidget(follow_, 0, Qt::AlignLeft);
  facts->addStretch(1);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addLayout(facts, 0);
  layout->addWidget(chart_, 1);

  connect(follow_, &QPushButton::clicked, this, [this] {
    core_.followBids();
    refresh();
  });
  block_.onFeedDepthChanged = [this](const MarketDepthState& depth) {
    if (core_.isDepthOf(depth)) refresh();
  };
  refresh();
}

SelectedIssuePane::~SelectedIssuePane() {
  block_.onFeedDepthChanged = nullptr;
}

void SelectedIssuePane::showIssue(const sOFSCol* issue) {
  if (issue == core_.issue()) return;
  core_.show(issue);
  refresh();
}

void SelectedIssuePane::refresh() {
  heading_->setText(QString::fromStdString(core_.heading()));
  const std::vector<CSelectedIssue::Fact> facts = core_.facts();
  while (facts_.size() < facts.size()) {
    const int at = static_cast<int>(facts_.size());
    auto* label = new QLabel(this);
    label->setForegroundRole(QPalette::PlaceholderText);
    auto* value = new QLabel(this);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setBuddy(value);
    factsGrid_->addWidget(label, at / kFactPairsPerRow, at % kFactPairsPerRow * 2);
    factsGrid_->addWidget(value, at / kFactPairsPerRow, at % kFactPairsPerRow * 2 + 1);
    // Added to a pane already on screen, a label would wait for the event loop to appear.
    label->show();
    value->show();
    facts_.emplace_back(label, value);
  }
  for (size_t i = 0; i < facts_.size(); ++i) {
    const bool shown = i < facts.size();
    facts_[i].first->setText(shown ? QString::fromStdString(facts[i].label) : QString());
    facts_[i].second->setText(shown ? QString::fromStdString(facts[i].value) : QString());
  }
  const bool follows = core_.followsBids();
  follow_->setVisible(core_.issue() && !follows);
  chart_->setEmptyText(!core_.issue() ? "Select an issue to see its bids"
                       : follows      ? "No bids yet"
                                      : "Bids of this issue are not followed yet");
  chart_->setCurve(core_.demand());
}
