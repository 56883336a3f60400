// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/character_model.h"

#include "base/character_names.h"
#include "powerbuttons/ui/character_index.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPalette>

namespace tolvo {

CharacterModel::CharacterModel(int columns, QObject *parent)
    : QAbstractTableModel(parent), m_columns(columns) {
}

void CharacterModel::setCharacters(const QList<char32_t> &characters) {
    beginResetModel();
    m_characters = characters;
    endResetModel();
}

void CharacterModel::setFont(const QFont &font) {
    m_font = font;
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, m_columns - 1));
}

char32_t CharacterModel::at(const QModelIndex &index) const {
    return index.isValid() ? m_characters.value(index.row() * m_columns + index.column()) : 0;
}

int CharacterModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>((m_characters.size() + m_columns - 1) / m_columns);
}

int CharacterModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : m_columns;
}

QVariant CharacterModel::data(const QModelIndex &index, int role) const {
    const char32_t character = at(index);
    if (character == 0)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromUcs4(&character, 1);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return QString(characterCode(character) + u' ' + characterName(character));
    case Qt::FontRole:
        return m_font;
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignCenter);
    case Qt::ForegroundRole:
        if (!QFontMetrics(m_font).inFontUcs4(static_cast<uint>(character)))
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        return {};
    default:
        return {};
    }
}

Qt::ItemFlags CharacterModel::flags(const QModelIndex &index) const {
    return at(index) == 0 ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

} // namespace tolvo
