#pragma once

#include <QColor>
#include <QDate>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QStringList>
#include <QTest>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt::testing {

// The first property a control declares, past QWidget's own.
inline int FirstOwnProperty() { return QWidget::staticMetaObject.propertyCount(); }

// Watches every NOTIFY property of a control across one action: the signal of a property whose
// value changed must come exactly once, and no signal may come when none of its values changed.
class NotifyWatch {
 public:
  explicit NotifyWatch(QObject* object) : object_(object) {
    const QMetaObject* meta = object->metaObject();
    for (int i = FirstOwnProperty(); i < meta->propertyCount(); ++i) {
      const QMetaProperty property = meta->property(i);
      if (!property.hasNotifySignal()) continue;
      before_[i] = property.read(object);
      const int signal = property.notifySignalIndex();
      if (!spies_.count(signal)) spies_[signal] = std::make_unique<QSignalSpy>(object, property.notifySignal());
    }
  }

  // One line a signal that did not match its properties' changes; empty when all did.
  QStringList Mismatches() const {
    const QMetaObject* meta = object_->metaObject();
    std::map<int, QStringList> changed;  // the changed properties, by signal
    for (const auto& [index, before] : before_) {
      const QMetaProperty property = meta->property(index);
      if (property.read(object_) != before) changed[property.notifySignalIndex()] << property.name();
    }
    QStringList problems;
    for (const auto& [signal, spy] : spies_) {
      const QString name = QString::fromLatin1(meta->method(signal).name());
      const auto found = changed.find(signal);
      const qsizetype expected = found == changed.end() ? 0 : 1;
      if (spy->count() != expected) {
        problems << QStringLiteral("%1 came %2 times (changed: %3)")
                        .arg(name)
                        .arg(spy->count())
                        .arg(found == changed.end() ? QStringLiteral("none") : found->second.join(','));
      }
    }
    return problems;
  }

 private:
  QObject* object_;
  std::map<int, QVariant> before_;
  std::map<int, std::unique_ptr<QSignalSpy>> spies_;
};

// Runs `action` under a NotifyWatch and fails the test, naming the step, on any mismatch.
inline bool SignalsMatchChanges(QObject* object, const char* step, const std::function<void()>& action) {
  NotifyWatch watch(object);
  action();
  const QStringList problems = watch.Mismatches();
  if (problems.isEmpty()) return true;
  QTest::qFail(qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(step), problems.join("; "))), __FILE__, __LINE__);
  return false;
}

// A value of the same type that differs from `value`; an unset variant becomes an amount.
inline QVariant Another(const QVariant& value) {
  if (value.metaType() == QMetaType::fromType<Currency>()) {
    return QVariant::fromValue(value.value<Currency>() + Currency::FromInteger(2));
  }
  switch (value.metaType().id()) {
    case QMetaType::Bool: return !value.toBool();
    case QMetaType::QColor: return value.value<QColor>() == QColor(12, 34, 56) ? QColor(65, 43, 21) : QColor(12, 34, 56);
    case QMetaType::QString: return QVariant(value.toString() + "7");
    case QMetaType::QDate: return value.toDate() == QDate(2026, 3, 4) ? QDate(2026, 3, 5) : QDate(2026, 3, 4);
    case QMetaType::Float: return value.toFloat() + 1.5f;
    case QMetaType::Short: return QVariant::fromValue(static_cast<short>(value.value<short>() == 1 ? 2 : 1));
    default: return QVariant::fromValue(Currency::FromInteger(3));
  }
}

// Writes another value to every writable NOTIFY property in turn, each under its own watch.
inline bool WritingEveryPropertySignalsItsChanges(QObject* object) {
  const QMetaObject* meta = object->metaObject();
  for (int i = FirstOwnProperty(); i < meta->propertyCount(); ++i) {
    const QMetaProperty property = meta->property(i);
    if (!property.hasNotifySignal() || !property.isWritable()) continue;
    const QVariant next = Another(property.read(object));
    if (!SignalsMatchChanges(object, property.name(), [&] { property.write(object, next); })) return false;
  }
  return true;
}

}  // namespace zenta::qt::testing
