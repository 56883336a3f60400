// SPDX-License-Identifier: MIT
#include "spelling/windows/AutomationObject.h"

#include "base/failure.h"

#include <algorithm>
#include <objbase.h>
#include <utility>
#include <vector>

namespace tolvo {

namespace {

constexpr LCID english = 0x0409;

bool findClass(const QString &programId, CLSID &found) {
    return SUCCEEDED(CLSIDFromProgID(programId.toStdWString().c_str(), &found));
}

/// The system doesn't mark what it only reads.
VARIANT *readable(const VARIANT &value) {
    return const_cast<VARIANT *>(&value);
}

[[noreturn]] void failFor(HRESULT result, EXCEPINFO &exception) {
    QString description = QString::fromWCharArray(exception.bstrDescription,
                                                  static_cast<int>(SysStringLen(exception.bstrDescription)));
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    if (description.isEmpty())
        description =
            QStringLiteral("Automation error &h%1").arg(static_cast<uint>(result), 8, 16, QChar(u'0'));
    throw Failure(static_cast<int>(result == DISP_E_EXCEPTION ? exception.scode : result), description);
}

} // namespace

AutomationValue::AutomationValue(int number) : AutomationValue() {
    m_variant.vt = VT_I4;
    m_variant.lVal = number;
}

AutomationValue::AutomationValue(bool flag) : AutomationValue() {
    m_variant.vt = VT_BOOL;
    m_variant.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
}

AutomationValue::AutomationValue(const QString &text) : AutomationValue() {
    m_variant.vt = VT_BSTR;
    m_variant.bstrVal =
        SysAllocStringLen(reinterpret_cast<const wchar_t *>(text.utf16()), static_cast<UINT>(text.size()));
}

AutomationValue::AutomationValue(const AutomationValue &other) : AutomationValue() {
    VariantCopy(&m_variant, readable(other.m_variant));
}

QString AutomationValue::text() const {
    AutomationValue converted;
    if (FAILED(VariantChangeType(converted.variant(), readable(m_variant), 0, VT_BSTR)))
        return {};
    const BSTR text = converted.m_variant.bstrVal;
    return QString::fromWCharArray(text, static_cast<int>(SysStringLen(text)));
}

int AutomationValue::number() const {
    AutomationValue converted;
    return FAILED(VariantChangeType(converted.variant(), readable(m_variant), 0, VT_I4))
               ? 0
               : converted.m_variant.lVal;
}

AutomationObject::~AutomationObject() {
    if (m_object)
        m_object->Release();
}

AutomationObject::AutomationObject(AutomationObject &&other) noexcept
    : m_object(std::exchange(other.m_object, nullptr)) {
}

AutomationObject &AutomationObject::operator=(AutomationObject &&other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
}

AutomationObject AutomationObject::create(const QString &programId) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); // the toolkit's plugin for windows has done so already
    CLSID program{};
    void *object = nullptr;
    if (!findClass(programId, program) ||
        FAILED(CoCreateInstance(program, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, &object)))
        throw Failure(failureNumber::objectNotCreated, QStringLiteral("%1 can't be started").arg(programId));
    return AutomationObject(static_cast<IDispatch *>(object));
}

bool AutomationObject::isRegistered(const QString &programId) {
    CLSID program{};
    return findClass(programId, program);
}

AutomationValue AutomationObject::get(const wchar_t *property, Values arguments) const {
    return invoke(property, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

AutomationObject AutomationObject::object(const wchar_t *property, Values arguments) const {
    AutomationValue value = get(property, arguments);
    IDispatch *object = value.variant()->vt == VT_DISPATCH ? value.variant()->pdispVal : nullptr;
    if (object == nullptr)
        throw Failure(failureNumber::typeMismatch,
                      QStringLiteral("%1 is not an object").arg(QString::fromWCharArray(property)));
    object->AddRef();
    return AutomationObject(object);
}

void AutomationObject::set(const wchar_t *property, const AutomationValue &value) const {
    invoke(property, DISPATCH_PROPERTYPUT, {value});
}

AutomationValue AutomationObject::call(const wchar_t *method, Values arguments) const {
    return invoke(method, DISPATCH_METHOD, arguments);
}

AutomationValue AutomationObject::invoke(const wchar_t *member, WORD how, Values arguments) const {
    EXCEPINFO exception{};
    std::wstring name = member;
    wchar_t *names[] = {name.data()};
    DISPID identifier = DISPID_UNKNOWN;
    if (const HRESULT found = m_object->GetIDsOfNames(IID_NULL, names, 1, english, &identifier);
        FAILED(found))
        failFor(found, exception);
    std::vector<VARIANT> values; // owned by the arguments; the last one comes first
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(values),
                   [](const AutomationValue &value) { return value.variant(); });
    std::reverse(values.begin(), values.end());
    DISPID put = DISPID_PROPERTYPUT;
    const bool puts = how == DISPATCH_PROPERTYPUT;
    DISPPARAMS parameters{values.data(), puts ? &put : nullptr, static_cast<UINT>(values.size()),
                          puts ? 1U : 0U};
    AutomationValue result;
    const HRESULT answer = m_object->Invoke(identifier, IID_NULL, english, how, &parameters,
                                            puts ? nullptr : result.variant(), &exception, nullptr);
    if (FAILED(answer))
        failFor(answer, exception);
    return result;
}

} // namespace tolvo
