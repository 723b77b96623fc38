#pragma once

#include <QCoreApplication>

/// The translation context of the selector's texts outside its class.
class SelectorTexts
{
    Q_DECLARE_TR_FUNCTIONS(ZetoCameraSelectorDialog)
};
