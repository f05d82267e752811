#include "options_model.h"

#include <QVariantMap>

#include "core_text.h"
#include "screens/fourth_view.h"
#include "screens/game_groups.h"
#include "session_host.h"
#include "session_options.h"

using tessarine::Options;

OptionsModel::OptionsModel(SessionHost& host) : QObject(&host), host_(host) {}

tessarine::Options OptionsModel::shownOptions() const {
  if (sheet_) return sheet_->bindings;
  return host_.session() != nullptr ? host_.session()->options() : Options{};
}

tessarine::Presentation OptionsModel::shownPresentation() const {
  if (sheet_) return presentation_;
  return host_.view().presentation;
}

QString OptionsModel::title() const {
  return fromCore(tessarine::seventhViewTitle(shownOptions().EnglishTranslation));
}

QString OptionsModel::gameType() const {
  return fromCore(shownOptions().gameType);
}

QVariantList OptionsModel::groups() const {
  QVariantList groups;
  if (!sheet_) return groups;
  for (const tessarine::GameGroup& group : tessarine::gameGroups(*sheet_)) {
    QVariantList items;
    for (const tessarine::GroupItem& item : group.items)
      items.append(QVariantMap{{"label", fromCore(item.label)}, {"selected", item.selected}});
    groups.append(
        QVariantMap{{"label", fromCore(group.label)}, {"selected", group.selected}, {"items", items}});
  }
  return groups;
}

QVariantList OptionsModel::optionRows() const {
  QVariantList rows;
  if (!sheet_) return rows;
  for (const tessarine::OptionRow& row : tessarine::optionRows(*sheet_)) {
    rows.append(QVariantMap{{"name", fromCore(row.name)},
                            {"label", fromCore(row.label)},
                            {"symbol", fromCore(row.symbol)},
                            {"on", row.on}});
  }
  return rows;
}

QString OptionsModel::colourBlindLabel() const {
  return fromCore(tessarine::colourBlindLabel(shownOptions().EnglishTranslation));
}

QString OptionsModel::challengeHeading() const {
  return fromCore(tessarine::challengeHeading(shownOptions().EnglishTranslation));
}

QString OptionsModel::playChallengeLabel() const {
  if (!sheet_) return {};
  for (const tessarine::OptionRow& row : tessarine::optionRows(*sheet_)) {
    if (row.field == nullptr) return fromCore(row.label);  // the row that opens the match
  }
  return {};
}

QString OptionsModel::rulesTitle() {
  return fromCore(tessarine::FourthView::title);
}

void OptionsModel::open() {
  if (!host_.ready()) return;
  sheet_ = tessarine::openSeventhView(host_.session()->options());
  presentation_ = host_.view().presentation;
  emit changed();
}

template <typename Change>
void OptionsModel::change(Change apply) {
  if (!sheet_) return;
  apply(*sheet_);
  emit changed();
}

void OptionsModel::chooseGroup(int group) {
  change([group](tessarine::SeventhView& sheet) {
    const auto groups = tessarine::gameGroups(sheet);
    if (group >= 0 && group < static_cast<int>(groups.size()))
      tessarine::chooseGroup(sheet, groups[static_cast<std::size_t>(group)]);
  });
}

void OptionsModel::chooseItem(int group, int item) {
  change([group, item](tessarine::SeventhView& sheet) {
    const auto groups = tessarine::gameGroups(sheet);
    if (group < 0 || group >= static_cast<int>(groups.size())) return;
    const auto& items = groups[static_cast<std::size_t>(group)].items;
    if (item >= 0 && item < static_cast<int>(items.size()))
      tessarine::chooseItem(sheet, items[static_cast<std::size_t>(item)]);
  });
}

void OptionsModel::setOption(const QString& name, bool on) {
  const tessarine::OptionInfo* option = tessarine::findOption(name.toStdString());
  if (option == nullptr) return;
  change([option, on](tessarine::SeventhView& sheet) { tessarine::setOption(sheet, option->field, on); });
}

void OptionsModel::setColourBlind(bool on) {
  if (!sheet_) return;
  presentation_.colourBlind = on;
  emit changed();
}

bool OptionsModel::close() {
  if (!sheet_) return false;
  const std::optional<Options> changedOptions = tessarine::closeSeventhView(*sheet_);
  const tessarine::Presentation presentation = presentation_;
  sheet_.reset();
  // The drawing choice changes no rule, so it is saved whether or not the options changed.
  host_.act([&](tessarine::Session& session) {
    session.applyPresentation(presentation);
    if (changedOptions) applyOptions(session, *changedOptions);
  });
  emit changed();
  return changedOptions.has_value();
}
