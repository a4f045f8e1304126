#include "controls/forms.h"

#include <QPointer>

#include <vector>

namespace qinghe {

Forms::~Forms() {
    clear();
}

void Forms::clear() {
    // A window that hangs off another one is deleted with it.
    std::vector<QPointer<Form>> left;
    for (auto& [name, form] : m_forms) {
        form->m_forms = nullptr;
        left.emplace_back(form);
    }
    m_forms.clear();
    for (const QPointer<Form>& form : left)
        delete form.data();
}

Form& Forms::get(const QString& name) {
    if (Form* form = loaded(name))
        return *form;
    Form* form = m_makers.at(name)();
    form->m_forms = this;
    m_forms[name] = form;
    form->load();
    return *form;
}

Form* Forms::loaded(const QString& name) const {
    const auto it = m_forms.find(name);
    return it == m_forms.end() ? nullptr : it->second;
}

void Forms::unload(const QString& name) {
    const auto it = m_forms.find(name);
    if (it == m_forms.end())
        return;
    Form* form = it->second;
    forget(*form);
    form->unloaded();
    form->hide();
    form->deleteLater();
}

void Forms::forget(Form& form) {
    form.m_forms = nullptr;
    m_forms.erase(form.objectName());
}

} // namespace qinghe
