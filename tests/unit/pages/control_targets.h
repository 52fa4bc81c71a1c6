#pragma once
#include "controls/command/tolva_command.h"
#include "controls/input/tolva_input.h"
#include "controls/label/tolva_label.h"
#include "controls/list/tolva_list.h"
#include "controls/scroll/tolva_scroll.h"
#include "controls/tabs/tolva_tabs.h"
#include "core/automation_error.h"
#include "pages/page_target.h"
#include <functional>
#include <map>
#include <memory>

namespace tolva {

// The core controls as a page reaches them in tests: by member name, the arguments converted as
// the automation layer converts them. Only the members the pages use are listed.
class TableTarget final : public PageTarget {
public:
    using Arguments = std::vector<Variant>;
    struct Member {
        std::function<Variant(const Arguments&)> get;
        std::function<void(const Arguments&, const Variant&)> put;
        std::function<void(const Arguments&)> call;
    };
    explicit TableTarget(std::map<String, Member> members)
        : m_members(std::move(members))
    { }

    Variant Get(StringView name, const Arguments& indexes) override { return Find(name).get(indexes); }
    void Put(StringView name, const Arguments& indexes, const Variant& value) override { Find(name).put(indexes, value); }
    void Call(StringView name, const Arguments& arguments) override { Find(name).call(arguments); }

private:
    Member& Find(StringView name) { return m_members.at(String(name)); }
    std::map<String, Member> m_members;
};

namespace targets {

using Arguments = TableTarget::Arguments;
using Member = TableTarget::Member;

// A plain property of type T through a getter and a setter of the control.
template <class T, class C, class Get, class Let> Member Property(C& c, Get get, Let let)
{
    return { [&c, get](const Arguments&) { return Variant(T((c.*get)())); },
             [&c, let](const Arguments&, const Variant& v) {
                 if constexpr (std::is_same_v<T, String>)
                     (c.*let)(v.ToString());
                 else if constexpr (std::is_same_v<T, bool>)
                     (c.*let)(v.ToBool());
                 else
                     (c.*let)(v.ToInt32());
             },
             {} };
}

inline Variant Argument(const Arguments& a, size_t i) { return i < a.size() ? a[i] : Variant(); }

inline std::shared_ptr<PageTarget> Of(TolvaCommand& c)
{
    return std::make_shared<TableTarget>(std::map<String, Member> {
        { u"Caption", Property<String>(c, &TolvaCommand::Caption, &TolvaCommand::SetCaption) },
        { u"MenuName", Property<String>(c, &TolvaCommand::MenuName, &TolvaCommand::SetMenuName) },
        { u"Enabled", Property<bool>(c, &TolvaCommand::Enabled, &TolvaCommand::SetEnabled) } });
}

inline std::shared_ptr<PageTarget> Of(TolvaLabel& c)
{
    return std::make_shared<TableTarget>(std::map<String, Member> {
        { u"Caption", Property<String>(c, &TolvaLabel::Caption, &TolvaLabel::SetCaption) },
        { u"Alignment", Property<int32_t>(c, &TolvaLabel::Alignment, &TolvaLabel::SetAlignment) },
        { u"ArrowIcon", Property<int32_t>(c, &TolvaLabel::ArrowIcon, &TolvaLabel::SetArrowIcon) },
        { u"ArrowPosition", Property<int32_t>(c, &TolvaLabel::ArrowPosition, &TolvaLabel::SetArrowPosition) },
        { u"Enabled", Property<bool>(c, &TolvaLabel::Enabled, &TolvaLabel::SetEnabled) },
        { u"Kerning", Property<bool>(c, &TolvaLabel::Kerning, &TolvaLabel::SetKerning) } });
}

inline std::shared_ptr<PageTarget> Of(TolvaInput& c)
{
    return std::make_shared<TableTarget>(std::map<String, Member> {
        { u"Text", Property<String>(c, &TolvaInput::Text, &TolvaInput::SetText) },
        { u"MaxLength", Property<int32_t>(c, &TolvaInput::MaxLength, &TolvaInput::SetMaxLength) },
        { u"Locked", Property<bool>(c, &TolvaInput::Locked, &TolvaInput::SetLocked) },
        { u"SelectionTracking", Property<bool>(c, &TolvaInput::SelectionTracking, &TolvaInput::SetSelectionTracking) } });
}

inline std::shared_ptr<PageTarget> Of(TolvaScroll& c)
{
    return std::make_shared<TableTarget>(std::map<String, Member> {
        { u"SmallChange", Property<int32_t>(c, &TolvaScroll::SmallChange, &TolvaScroll::SetSmallChange) },
        { u"LargeChange", Property<int32_t>(c, &TolvaScroll::LargeChange, &TolvaScroll::SetLargeChange) },
        { u"Max", Property<int32_t>(c, &TolvaScroll::Max, &TolvaScroll::SetMax) },
        { u"Min", Property<int32_t>(c, &TolvaScroll::Min, &TolvaScroll::SetMin) },
        { u"Value", Property<int32_t>(c, &TolvaScroll::Value, &TolvaScroll::SetValue) } });
}

inline std::shared_ptr<PageTarget> Of(TolvaTabs& c)
{
    return std::make_shared<TableTarget>(std::map<String, Member> {
        { u"TabWidth", Property<int32_t>(c, &TolvaTabs::TabWidth, &TolvaTabs::SetTabWidth) },
        { u"TabCount", { [&c](const Arguments&) { return Variant(c.TabCount()); }, {}, {} } },
        { u"Tabs", { [&c](const Arguments& a) { return Variant(c.Tabs(a.at(0).ToInt32())); }, {}, {} } },
        { u"Clear", { {}, {}, [&c](const Arguments&) { c.Clear(); } } },
        { u"AddItem", { {}, {}, [&c](const Arguments& a) { c.AddItem(a.at(0).ToString()); } } } });
}

inline std::shared_ptr<PageTarget> Of(TolvaList& c)
{
    const auto indexed = [&c](auto get, auto let) {
        return Member { [&c, get](const Arguments& a) { return Variant((c.*get)(a.at(0).ToInt16())); },
                        [&c, let](const Arguments& a, const Variant& v) { (c.*let)(a.at(0).ToInt16(), v.ToInt32()); },
                        {} };
    };
    return std::make_shared<TableTarget>(std::map<String, Member> {
        { u"ShowColumnHeaders", Property<bool>(c, &TolvaList::ShowColumnHeaders, &TolvaList::SetShowColumnHeaders) },
        { u"SelectionTracking", Property<bool>(c, &TolvaList::SelectionTracking, &TolvaList::SetSelectionTracking) },
        { u"RowHeight", Property<int32_t>(c, &TolvaList::RowHeight, &TolvaList::SetRowHeight) },
        { u"ColumnCount", { [&c](const Arguments&) { return Variant(c.ColumnCount()); }, {}, {} } },
        { u"ColumnText", { [&c](const Arguments& a) { return Variant(c.ColumnText(a.at(0).ToInt16())); }, {}, {} } },
        { u"ColumnWidth", indexed(&TolvaList::ColumnWidth, &TolvaList::SetColumnWidth) },
        { u"ColumnAlignment", indexed(&TolvaList::ColumnAlignment, &TolvaList::SetColumnAlignment) },
        { u"ColumnClear", { {}, {}, [&c](const Arguments&) { c.ColumnClear(); } } },
        { u"AddColumn", { {}, {}, [&c](const Arguments& a) {
              const Variant alignment = Argument(a, 1), width = Argument(a, 2);
              c.AddColumn(a.at(0).ToString(), alignment.IsEmpty() ? 0 : alignment.ToInt32(),
                          width.IsEmpty() ? 1200 : width.ToInt32());
          } } } });
}

} // namespace targets

} // namespace tolva
