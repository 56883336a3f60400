// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <initializer_list>
#include <windows.h>

#include <oaidl.h>

namespace tolvo {

/// One value that goes to an automation object or comes from it.
class AutomationValue {
  public:
    AutomationValue() { VariantInit(&m_variant); }
    AutomationValue(int number);
    AutomationValue(bool flag);
    AutomationValue(const QString &text);
    ~AutomationValue() { VariantClear(&m_variant); }
    AutomationValue(const AutomationValue &other);
    AutomationValue &operator=(const AutomationValue &) = delete;

    /// The value as a text or a number, converted as the system does it; empty and 0 where it can't.
    [[nodiscard]] QString text() const;
    [[nodiscard]] int number() const;

    VARIANT *variant() { return &m_variant; }
    [[nodiscard]] const VARIANT &variant() const { return m_variant; }

  private:
    VARIANT m_variant;
};

/// An object of another program, whose members are called by their names (COM automation, late bound). Every
/// call may fail with a Failure that carries the result code of the system and the description of the object.
class AutomationObject {
  public:
    using Values = std::initializer_list<AutomationValue>;

    /// Takes the pointer over.
    explicit AutomationObject(IDispatch *object = nullptr) : m_object(object) {}
    ~AutomationObject();
    AutomationObject(AutomationObject &&other) noexcept;
    AutomationObject &operator=(AutomationObject &&other) noexcept;

    /// A new instance of the program of that name, such as "Word.Application". Fails with 429 if there is
    /// none.
    [[nodiscard]] static AutomationObject create(const QString &programId);
    /// Whether such a program is registered.
    [[nodiscard]] static bool isRegistered(const QString &programId);

    [[nodiscard]] AutomationValue get(const wchar_t *property, Values arguments = {}) const;
    [[nodiscard]] AutomationObject object(const wchar_t *property, Values arguments = {}) const;
    void set(const wchar_t *property, const AutomationValue &value) const;
    AutomationValue call(const wchar_t *method, Values arguments = {}) const;

    [[nodiscard]] IDispatch *dispatch() const { return m_object; }

  private:
    AutomationValue invoke(const wchar_t *member, WORD how, Values arguments) const;

    IDispatch *m_object;
};

} // namespace tolvo
