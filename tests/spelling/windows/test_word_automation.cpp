// SPDX-License-Identifier: MIT
#include "spelling/windows/AutomationObject.h"
#include "spelling/word_automation.h"
#include "tests/support/failures.h"

#include <QStringList>

#include <map>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // nobody deletes what the system defines as an interface

/// An object with the members Text (a property), Join and Fail (methods), which notes how it was called.
class Script final : public IDispatch {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void **) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo **) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR *names, UINT, LCID, DISPID *found) override {
        static const std::map<std::wstring, DISPID> members{{L"Text", 1}, {L"Join", 2}, {L"Fail", 3}};
        const auto member = members.find(names[0]);
        if (member == members.end())
            return DISP_E_UNKNOWNNAME;
        *found = member->second;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD how, DISPPARAMS *given,
                                     VARIANT *result, EXCEPINFO *exception, UINT *) override {
        if (member == 3) {
            exception->scode = 5;
            exception->bstrDescription = SysAllocString(L"no room");
            return DISP_E_EXCEPTION;
        }
        QStringList arguments;
        for (UINT i = given->cArgs; i-- > 0;)
            arguments += given->rgvarg[i].vt == VT_BSTR ? QString::fromWCharArray(given->rgvarg[i].bstrVal)
                                                        : QString::number(given->rgvarg[i].lVal);
        if (how == DISPATCH_PROPERTYPUT) {
            if (given->cNamedArgs != 1 || given->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT)
                return DISP_E_PARAMNOTFOUND;
            text = arguments.value(0);
        } else if (result) {
            const QString answer = member == 1 ? text : arguments.join(u'+');
            result->vt = VT_BSTR;
            result->bstrVal = SysAllocString(answer.toStdWString().c_str());
        }
        return S_OK;
    }

    ULONG references = 1;
    QString text;
};

TEST(Automation, CallsMembersByTheirNames) {
    Script script;
    {
        const AutomationObject object(&script);
        object.set(L"Text", u"a\rb"_s);
        EXPECT_EQ(object.get(L"Text").text(), u"a\rb"_s);
        EXPECT_EQ(object.call(L"Join", {1, u"two"_s, 3}).text(), u"1+two+3"_s);
        object.set(L"Text", 42);
        EXPECT_EQ(object.get(L"Text").number(), 42);
        expectFailure(
            5, [&] { object.call(L"Fail"); }, u"no room"_s);
        expectFailure(static_cast<int>(DISP_E_UNKNOWNNAME), [&] { object.call(L"Missing"); });
        expectFailure(failureNumber::typeMismatch, [&] { (void)object.object(L"Text"); });
    }
    EXPECT_EQ(script.references, 0U);
}

TEST(Automation, FailsWith429WhereTheProgramIsAbsent) {
    expectFailure(failureNumber::objectNotCreated,
                  [] { (void)AutomationObject::create(u"Tolvo.NoSuchProgram"_s); });
    if (!wordOfSystem()->isPossible())
        expectFailure(failureNumber::objectNotCreated, [] { (void)wordOfSystem()->create(); });
}

} // namespace
} // namespace tolvo
