#pragma once

#include "controls/form.h"

#include <QString>

#include <functional>
#include <map>

namespace qinghe {

/// The forms by name, each with one default instance that is made by its first use and gone when it is unloaded.
class Forms {
public:
    using Maker = std::function<Form*()>;

    ~Forms();
    void define(const QString& name, Maker maker);

    /// The form, made and loaded when it is not.
    Form& get(const QString& name);
    template<class T>
    T& get(const QString& name) {
        return static_cast<T&>(get(name));
    }
    /// The form when it is loaded, else nullptr.
    Form* loaded(const QString& name) const;
    /// Harmless when the form is not loaded. The window goes at once, the object when the handlers have returned.
    void unload(const QString& name);
    /// Takes all forms away at once, without their unload handlers.
    void clear();
    bool anyLoaded() const { return !m_forms.empty(); }

private:
    friend class Form;
    void forget(Form& form);

    std::map<QString, Maker> m_makers;
    std::map<QString, Form*> m_forms;
};

} // namespace qinghe
