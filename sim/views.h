// Views and View of a simulated folder, kept small: names, types, the XML
// document, and counts of Save and Apply for tests to check.
//
// Every folder starts with one standard view for its kind ("Calendar",
// "Simple List" or "Compact"), which can't be deleted. Views.Item by a name
// that isn't there fails; Views.Add of a name that is there fails. Setting
// XML to text without a <view> element fails, as the host refuses it
// (sim/documents/view_document.h reads a document as the host does).
// Apply makes the view the folder's current view (Explorer.CurrentView).
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sim/collection.h"

namespace qvx::sim {

class SimFolder;
class SimViews;

class SimView : public SimObject {
 public:
  SimView(std::weak_ptr<SimViews> owner, std::string name, int32_t viewType, int32_t saveOption,
          bool standard);
  std::string TypeName() const override { return "View"; }

  const std::string& name() const { return name_; }
  int32_t viewType() const { return viewType_; }
  const std::string& xml() const { return xml_; }
  void SetXml(std::string xml) { xml_ = std::move(xml); }
  int saves() const { return saves_; }
  int applies() const { return applies_; }
  bool deleted() const { return deleted_; }

 protected:
  const MemberTable& Members() const override;
  void CheckUsable() const override;

 private:
  friend class SimViews;
  std::weak_ptr<SimViews> owner_;
  std::string name_;
  int32_t viewType_;
  int32_t saveOption_;
  bool standard_;
  std::string xml_;
  std::string filter_;
  int saves_ = 0;
  int applies_ = 0;
  bool deleted_ = false;
};

class SimViews : public SimCollection<SimView> {
 public:
  SimViews(ContextPtr context, std::weak_ptr<SimFolder> folder)
      : SimCollection(std::move(context)), folder_(std::move(folder)) {}
  std::string TypeName() const override { return "Views"; }

  std::shared_ptr<SimView> Find(std::string_view name) const;
  std::shared_ptr<SimView> Add(std::string_view name, int32_t viewType, int32_t saveOption,
                               bool standard = false);
  void Remove(const SimView& view);
  std::shared_ptr<SimView> current() const;
  void SetCurrent(const std::shared_ptr<SimView>& view) { current_ = view; }
  std::shared_ptr<SimFolder> folder() const { return folder_.lock(); }

 protected:
  const MemberTable& Members() const override;
  Variant ParentObject() override;
  Variant ItemByKey(const Variant& key) override;

 private:
  std::weak_ptr<SimFolder> folder_;
  std::weak_ptr<SimView> current_;
};

}  // namespace qvx::sim
