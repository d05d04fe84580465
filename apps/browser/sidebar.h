// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <map>
#include <string>
#include <vector>

#include "character_filter.h"

namespace browser {

class Catalog;

/// The rows of the sidebar, one for each scope that the user can choose. The parts of the catalog come first,
/// then a heading and the groups. Each group has a check mark, which says whether it is displayed, and the
/// number of its characters.
class ScopeModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role { countRole = Qt::UserRole, headingRole };

  explicit ScopeModel(Catalog& catalog);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Returns null for a heading.
  const Scope* scope(const QModelIndex& index) const;
  QModelIndex indexOf(const Scope& scope) const;

 private:
  struct Row {
    const char* heading = nullptr;  ///< untranslated; null for a row with a scope
    Scope scope{};
  };
  qlonglong characterCount(const Scope& scope) const;
  qlonglong countOutsideCatalog(const Scope& scope) const;

  Catalog& catalog_;
  std::vector<Row> rows_;
  std::size_t totalCount_ = 0;
  mutable std::map<std::string, qlonglong> counts_;  // by Scope::text(), for scopes outside the catalog
};

/// The list at the left of the window. The current row is the scope that is shown.
class Sidebar : public QListView {
  Q_OBJECT

 public:
  explicit Sidebar(Catalog& catalog, QWidget* parent = nullptr);

  void setScope(const Scope& scope);

 Q_SIGNALS:
  void scopeChosen(const Scope& scope);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void changeEvent(QEvent* event) override;

 private:
  void updatePalette();
  ScopeModel model_;
  bool isTelling_ = true;
};

}  // namespace browser
