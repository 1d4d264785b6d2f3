#pragma once

#include <QString>
#include <QWidget>

namespace orvanta::test {

/// Numbers the pictures of a folder in the order in which they are taken.
class Album {
public:
    explicit Album(QString folder) : m_folder(std::move(folder)) {}

    void take(QWidget& window, const QString& name);
    /// A window with what has come up in front of it.
    void takeWith(QWidget& window, QWidget& inFront, const QString& name);

    int count() const { return m_count; }
    /// False once a picture could not be written.
    bool isWhole() const { return m_whole; }

private:
    void keep(const QPixmap& picture, const QString& name);

    QString m_folder;
    int m_count = 0;
    bool m_whole = true;
};

}  // namespace orvanta::test
