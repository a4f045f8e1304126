#pragma once

#include "controls/form.h"

#include <QString>

#include <functional>
#include <map>

namespace qinghe {

/// The name of a form; T is what whoever asks for it may know of it.
template<class T = Form>
struct FormName {
    QStringView text;

    operator QString() const { return text.toString(); }
};

/// The forms by name, each with one default instance that is made by its first use and gone when it is unloaded.
class Forms {
public:
    ~Forms();
    /// `make()` gives a new T.
    template<class T, class Make>
    void define(const FormName<T>& name, Make make) {
        m_makers[name.text.toString()] = [make]() -> Form* {
            T* const made = make();
            return made;
        };
    }

    /// The form, made and loaded when it is not.
    template<class T>
    T& get(const FormName<T>& name) {
        return static_cast<T&>(get(name.text.toString()));
    }
    /// The form when it is loaded, else nullptr.
    template<class T>
    T* loaded(const FormName<T>& name) const {
        return static_cast<T*>(loaded(name.text.toString()));
    }
    /// Harmless when the form is not loaded. The window goes at once, the object when the handlers have returned.
    template<class T>
    void unload(const FormName<T>& name) {
        unload(name.text.toString());
    }
    /// The same by the name that the form bears outside.
    Form* loaded(const QString& name) const;
    void unload(const QString& name);
    /// Takes all forms away at once, without their unload handlers.
    void clear();
    bool anyLoaded() const { return !m_forms.empty(); }

private:
    friend class Form;
    Form& get(const QString& name);
    void forget(Form& form);

    std::map<QString, std::function<Form*()>> m_makers;
    std::map<QString, Form*> m_forms;
};

} // namespace qinghe
