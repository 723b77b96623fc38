#pragma once

#include "nodedeclaration.h"

#include <string>
#include <utility>
#include <vector>

namespace ZetoNodeMap {

/// What can be said about any node. Every function returns the builder, so that a feature is one expression:
///
///     b.integer("Width").in("ImageFormat").unit("px").limits(16, 4096).increment(4).value(640);
///
/// A builder is a handle to a declaration inside the NodeMapBuilder: copy it freely, use it before build().
template <class Self>
class FeatureBuilder
{
public:
    using Names = std::vector<std::string>;

    /// Makes it a member of \a category, after those that the category lists itself.
    Self& in(const std::string& category) { return add(m_declaration->references.categories, {category}); }

    Self& displayName(std::string text) { return set(m_declaration->info.displayName, std::move(text)); }
    Self& toolTip(std::string text) { return set(m_declaration->info.toolTip, std::move(text)); }
    Self& description(std::string text) { return set(m_declaration->info.description, std::move(text)); }
    Self& docuUrl(std::string url) { return set(m_declaration->info.docuUrl, std::move(url)); }
    /// Hexadecimal, without a prefix.
    Self& eventId(std::string id) { return set(m_declaration->info.eventId, std::move(id)); }
    Self& visibility(GenApi::EVisibility level) { return set(m_declaration->info.visibility, level); }
    Self& nameSpace(GenApi::ENameSpace space) { return set(m_declaration->info.nameSpace, space); }
    /// The name is one of the standard's.
    Self& standard() { return nameSpace(GenApi::Standard); }
    Self& streamable(bool on = true) { return set(m_declaration->info.streamable, on); }
    Self& deprecated(bool on = true) { return set(m_declaration->info.deprecated, on); }

    /// Without it: what the source suggests (ValueSource::defaultCachingMode()).
    Self& caching(GenApi::ECachingMode mode) { return set(m_declaration->info.cachingMode, mode); }
    /// In milliseconds; INodeMap::Poll() invalidates the node that often.
    Self& pollingTime(int64_t interval) { return set(m_declaration->info.pollingTime, interval); }

    Self& access(GenApi::EAccessMode mode) { return set(m_declaration->access.declared, mode); }
    Self& implementedIf(Setting<bool> condition)
    {
        return rule(m_declaration->access.implemented, std::move(condition));
    }
    Self& availableIf(Setting<bool> condition)
    {
        return rule(m_declaration->access.available, std::move(condition));
    }
    /// While it holds the node cannot be written.
    Self& lockedIf(Setting<bool> condition)
    {
        return rule(m_declaration->access.locked, std::move(condition));
    }

    /// Makes it a selector of these features.
    Self& selects(const Names& features) { return add(m_declaration->references.selected, features); }
    /// Whatever changes one of \a nodes may change this one.
    Self& invalidatedBy(const Names& nodes) { return add(m_declaration->references.invalidators, nodes); }
    /// Whatever changes this one may change \a nodes.
    Self& invalidates(const Names& nodes) { return add(m_declaration->references.invalidated, nodes); }
    Self& alias(std::string node) { return set(m_declaration->references.alias, std::move(node)); }
    Self& castAlias(std::string node) { return set(m_declaration->references.castAlias, std::move(node)); }

protected:
    explicit FeatureBuilder(NodeDeclaration& declaration)
        : m_declaration(&declaration)
    {
    }

    Self& self() { return static_cast<Self&>(*this); }

    template <class Member, class Value>
    Self& set(Member& member, Value&& value)
    {
        member = std::forward<Value>(value);
        return self();
    }

    Self& add(Names& list, const Names& names)
    {
        list.insert(list.end(), names.begin(), names.end());
        return self();
    }

    /// Sets something that may be computed from other nodes.
    template <class Member, class T>
    Self& rule(Member& member, Setting<T> setting)
    {
        add(m_declaration->references.inputs, setting.inputs());
        return set(member, std::move(setting));
    }

private:
    NodeDeclaration* m_declaration;
};

} // namespace ZetoNodeMap
