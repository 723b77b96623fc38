#pragma once

#include <GenApi/Container.h>
#include <GenApi/IBase.h>

#include <cassert>

namespace GENAPI_NAMESPACE {

typedef node_vector NodeList_t;

/// Names a registered callback. It is the address of the CNodeCallback.
typedef intptr_t CallbackHandleType;

/// What every node has, whatever its value is. The texts and hints can be read in any access mode.
struct GENAPI_DECL_ABSTRACT INode : virtual public IBase
{
    /// The name, unique in the node map; with \a FullQualified after the prefix of its name space.
    virtual GENICAM_NAMESPACE::gcstring GetName(bool FullQualified = false) const = 0;

    /// Whether the name is the standard's or the maker's own.
    virtual ENameSpace GetNameSpace() const = 0;

    /// For whom the node is meant: its own level raised by the imposed one.
    virtual EVisibility GetVisibility() const = 0;

    /// Drops what is cached here and in all nodes that depend on this one, and calls their callbacks.
    virtual void InvalidateNode() = 0;

    /// Whether the value can be cached at all.
    virtual bool IsCachable() const = 0;

    /// Whether the access mode can be cached.
    virtual EYesNo IsAccessModeCacheable() const = 0;

    /// The caching mode, with regard to the nodes that the value comes from.
    virtual ECachingMode GetCachingMode() const = 0;

    /// The time in ms after which the value is to be read again, -1 if it does not change by itself.
    virtual int64_t GetPollingTime() const = 0;

    /// A short explanation, or empty.
    virtual GENICAM_NAMESPACE::gcstring GetToolTip() const = 0;

    /// A long explanation, or empty.
    virtual GENICAM_NAMESPACE::gcstring GetDescription() const = 0;

    /// The name for people; the plain name if there is no other.
    virtual GENICAM_NAMESPACE::gcstring GetDisplayName() const = 0;

    /// The name of the device that the node map belongs to.
    virtual GENICAM_NAMESPACE::gcstring GetDeviceName() const = 0;

    /// Puts the nodes that this one refers to as \a LinkType into the empty list \a Children.
    virtual void GetChildren(NodeList_t& Children, ELinkType LinkType = ctReadingChildren) const = 0;

    /// Puts the nodes that refer to this one into the empty list \a Parents.
    virtual void GetParents(NodeList_t& Parents) const = 0;

    /// Has \a pCallback called whenever the node may have changed, and owns it from now on.
    /// \return the handle to deregister it with.
    virtual CallbackHandleType RegisterCallback(CNodeCallback* pCallback) = 0;

    /// Removes and destroys a callback. \return false if this node has none of this handle.
    virtual bool DeregisterCallback(CallbackHandleType hCallback) = 0;

    /// The map that owns the node.
    virtual INodeMap* GetNodeMap() const = 0;

    /// The number of the device event that sets the node, in hexadecimal digits, or empty.
    virtual GENICAM_NAMESPACE::gcstring GetEventID() const = 0;

    /// Whether the node belongs into a saved set of parameters.
    virtual bool IsStreamable() const = 0;

    /// Puts the names of the properties that the description gives for the node into \a PropertyNames.
    virtual void GetPropertyNames(GENICAM_NAMESPACE::gcstring_vector& PropertyNames) const = 0;

    /// The text of one property, several values with tabs between them, and that of its attribute.
    /// \return false if the node has no such property.
    virtual bool GetProperty(const GENICAM_NAMESPACE::gcstring& PropertyName,
                             GENICAM_NAMESPACE::gcstring& ValueStr,
                             GENICAM_NAMESPACE::gcstring& AttributeStr) = 0;

    /// Takes rights away until \c RW is imposed again.
    virtual void ImposeAccessMode(EAccessMode ImposedAccessMode) = 0;

    /// Raises the level of people the node is meant for until \c Beginner is imposed again.
    virtual void ImposeVisibility(EVisibility ImposedVisibility) = 0;

    /// Another node for the same feature, or null.
    virtual INode* GetAlias() const = 0;

    /// A node that gives the same feature as a value of another type, or null.
    virtual INode* GetCastAlias() const = 0;

    /// The address of a document about the node, or empty.
    virtual GENICAM_NAMESPACE::gcstring GetDocuURL() const = 0;

    /// Whether new programs should do without the node.
    virtual bool IsDeprecated() const = 0;

    /// The interface by which to choose an editor. A node can have more: a register that holds an integer is
    /// an IInteger and an IRegister.
    virtual EInterfaceType GetPrincipalInterfaceType() const = 0;

    /// Whether the node can be reached from the category \c Root.
    virtual bool IsFeature() const = 0;
};

inline bool IsReadable(EAccessMode AccessMode)
{
    return AccessMode == RW || AccessMode == RO;
}

/// This and its like ask the node for its access mode, so they can throw. A null node is none of it.
inline bool IsReadable(const IBase* p)
{
    return p && IsReadable(p->GetAccessMode());
}

inline bool IsReadable(const IBase& r)
{
    return IsReadable(&r);
}

inline bool IsWritable(EAccessMode AccessMode)
{
    return AccessMode == RW || AccessMode == WO;
}

inline bool IsWritable(const IBase* p)
{
    return p && IsWritable(p->GetAccessMode());
}

inline bool IsWritable(const IBase& r)
{
    return IsWritable(&r);
}

inline bool IsImplemented(EAccessMode AccessMode)
{
    return AccessMode != NI;
}

inline bool IsImplemented(const IBase* p)
{
    return p && IsImplemented(p->GetAccessMode());
}

inline bool IsImplemented(const IBase& r)
{
    return IsImplemented(&r);
}

inline bool IsAvailable(EAccessMode AccessMode)
{
    return AccessMode != NI && AccessMode != NA;
}

inline bool IsAvailable(const IBase* p)
{
    return p && IsAvailable(p->GetAccessMode());
}

inline bool IsAvailable(const IBase& r)
{
    return IsAvailable(&r);
}

/// Whether a user of level \a MaxVisiblity is to see what is meant for \a Visibility.
inline bool IsVisible(EVisibility Visibility, EVisibility MaxVisiblity)
{
    return Visibility <= MaxVisiblity;
}

inline bool IsCacheable(ECachingMode CachingMode)
{
    return CachingMode != NoCache;
}

/// The rights that both modes give. Reading by one and writing by the other leaves nothing: \c NA.
inline EAccessMode Combine(EAccessMode Peter, EAccessMode Paul)
{
    assert(Peter != _UndefinedAccesMode && Paul != _UndefinedAccesMode);
    if (Peter == NI || Paul == NI)
        return NI;
    if (Peter == RW)
        return Paul;
    if (Paul == RW || Peter == Paul)
        return Peter;
    return NA;
}

/// The higher of two levels.
inline EVisibility Combine(EVisibility Peter, EVisibility Paul)
{
    assert(Peter != _UndefinedVisibility && Paul != _UndefinedVisibility);
    return Peter > Paul ? Peter : Paul;
}

/// The mode that trusts its cache less: NoCache, then WriteAround, then WriteThrough.
inline ECachingMode Combine(ECachingMode Peter, ECachingMode Paul)
{
    assert(Peter != _UndefinedCachingMode && Paul != _UndefinedCachingMode);
    if (Peter == NoCache || Paul == NoCache)
        return NoCache;
    return Peter == WriteAround || Paul == WriteAround ? WriteAround : WriteThrough;
}

} // namespace GENAPI_NAMESPACE
