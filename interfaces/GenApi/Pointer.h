#pragma once

#include <GenApi/IBoolean.h>
#include <GenApi/ICategory.h>
#include <GenApi/ICommand.h>
#include <GenApi/IEnumeration.h>
#include <GenApi/IFloat.h>
#include <GenApi/IInteger.h>
#include <GenApi/INodeMap.h>
#include <GenApi/IRegister.h>
#include <GenApi/IString.h>

#include <GenApi/ISelector.h>

namespace GENAPI_NAMESPACE {

/// A pointer to the interface \a T of an object that is given by its interface \a B; null if the object does
/// not have it. It owns nothing.
///
/// Using a null one throws LogicalErrorException, and so does turning it into a plain pointer, which also
/// happens in <tt>p != nullptr</tt>: write <tt>if (p)</tt>, <tt>p.IsValid()</tt> or <tt>p == nullptr</tt>.
template <class T, class B = IBase>
class CPointer
{
public:
    CPointer() noexcept
        : m_pT(nullptr)
    {
    }
    CPointer(B* pB)
        : m_pT(pB ? dynamic_cast<T*>(pB) : nullptr)
    {
    }
    CPointer(const CPointer&) = default;
    virtual ~CPointer() = default;
    CPointer& operator=(const CPointer&) = default;

    /// Later versions return the pointer: do not use the result.
    void operator=(B* pB) { m_pT = pB ? dynamic_cast<T*>(pB) : nullptr; }

    operator T*() const { return checked(); }
    T& operator*() const { return *checked(); }
    T& operator()() const { return *checked(); }
    T* operator->() const { return checked(); }

    bool IsValid() const noexcept { return m_pT != nullptr; }
    operator bool() const noexcept { return m_pT != nullptr; }

    bool operator==(T* pT) const { return m_pT == pT; }
    bool operator==(const CPointer& rT) const { return m_pT == rT.m_pT; }
    /// For the comparison with 0; any other number throws LogicalErrorException.
    bool operator==(int nMustBeNull) const
    {
        if (nMustBeNull != 0)
            throw LOGICAL_ERROR_EXCEPTION("A pointer can be compared with no number but 0");
        return m_pT == nullptr;
    }

protected:
    T* m_pT;

private:
    T* checked() const
    {
        if (!m_pT)
            throw LOGICAL_ERROR_EXCEPTION("A null pointer to a node was used");
        return m_pT;
    }
};

typedef CPointer<IBase> CBasePtr;
typedef CPointer<INode> CNodePtr;
typedef CPointer<IValue> CValuePtr;
typedef CPointer<ICategory> CCategoryPtr;
typedef CPointer<IBoolean> CBooleanPtr;
typedef CPointer<IInteger> CIntegerPtr;
typedef CPointer<IString> CStringPtr;
typedef CPointer<IRegister> CRegisterPtr;
typedef CPointer<IEnumeration> CEnumerationPtr;
typedef CPointer<IEnumEntry> CEnumEntryPtr;
typedef CPointer<ISelector> CSelectorPtr;
typedef CPointer<ICommand> CCommandPtr;
typedef CPointer<IPort> CPortPtr;
typedef CPointer<IPortReplay> CPortReplayPtr;
typedef CPointer<IPortRecorder> CPortRecorderPtr;
typedef CPointer<IPortWriteList, IPortWriteList> CPortWriteListPtr;
typedef CPointer<IChunkPort> CChunkPortPtr;
typedef CPointer<IPortConstruct> CPortConstructPtr;
typedef CPointer<IUserData> CNodeUserDataPtr;
typedef CPointer<INodeMap, INodeMap> CNodeMapPtr;
typedef CPointer<IDeviceInfo, INodeMap> CDeviceInfoPtr;
typedef CPointer<IUserData, INodeMap> CNodeMapUserDataPtr;

/// A pointer to a float that also leads to the same feature as an integer or an enumeration.
class CFloatPtr : public CPointer<IFloat, IBase>
{
public:
    CFloatPtr() noexcept = default;
    CFloatPtr(IBase* pB)
        : CPointer<IFloat, IBase>(pB)
    {
    }

    void operator=(IBase* pB) { CPointer<IFloat, IBase>::operator=(pB); }

    /// The feature as an integer, or null. The pointer itself must not be null.
    IInteger* GetIntAlias() { return dynamic_cast<IInteger*>((*this)->GetNode()->GetCastAlias()); }

    /// The feature as an enumeration, or null. The pointer itself must not be null.
    IEnumeration* GetEnumAlias() { return dynamic_cast<IEnumeration*>((*this)->GetNode()->GetCastAlias()); }
};

template <class T, class B>
inline bool IsReadable(const CPointer<T, B>& ptr)
{
    return ptr.IsValid() && IsReadable(ptr->GetAccessMode());
}

template <class T, class B>
inline bool IsWritable(const CPointer<T, B>& ptr)
{
    return ptr.IsValid() && IsWritable(ptr->GetAccessMode());
}

template <class T, class B>
inline bool IsImplemented(const CPointer<T, B>& ptr)
{
    return ptr.IsValid() && IsImplemented(ptr->GetAccessMode());
}

template <class T, class B>
inline bool IsAvailable(const CPointer<T, B>& ptr)
{
    return ptr.IsValid() && IsAvailable(ptr->GetAccessMode());
}

/// The name of a node's main interface, for example "IInteger". Deprecated: ask the node for its type.
inline GENICAM_NAMESPACE::gcstring GetInterfaceName(IBase* pBase)
{
    static const char* const names[] = {"IValue",    "IBase",        "IInteger",   "IBoolean",
                                        "ICommand",  "IFloat",       "IString",    "IRegister",
                                        "ICategory", "IEnumeration", "IEnumEntry", "IPort"};
    auto* const node = dynamic_cast<INode*>(pBase);
    return node ? names[node->GetPrincipalInterfaceType()] : "IBase";
}

} // namespace GENAPI_NAMESPACE
