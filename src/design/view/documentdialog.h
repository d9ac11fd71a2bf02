#pragma once

#include <QDialog>
#include <QString>

namespace design {
class DesignerDocument;
}

// A designer dialog over one row of the working copy, named by its object or style row. It
// reads the row when it opens; when it cannot, it has said so and should not be shown.
class DocumentDialog : public QDialog {
public:
    bool isLoaded() const { return m_loaded; }

protected:
    DocumentDialog(design::DesignerDocument &document, const QString &name, QWidget *parent)
        : QDialog(parent), m_document(document), m_name(name) {}

    design::DesignerDocument &m_document;
    const QString m_name;
    bool m_loaded = false;
};
