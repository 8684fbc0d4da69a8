#include "frame/relojnod.h"

#include "companion/dialogo.h"
#include "companion/hoy.h"
#include "companion/mensajes.h"
#include "companion/tdatetime.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>
#include <cerrno>
#include <cstring>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <time.h>
#endif

namespace nod {

namespace {

bool ajustaRelojSistema(const QDateTime& local, QString& motivo) {
#ifdef Q_OS_WIN
    const QDate d = local.date();
    const QTime t = local.time();
    SYSTEMTIME st{WORD(d.year()), WORD(d.month()),  WORD(d.dayOfWeek() % 7), WORD(d.day()),
                  WORD(t.hour()), WORD(t.minute()), WORD(t.second()),        WORD(t.msec())};
    if (SetLocalTime(&st)) return true;
    motivo = QStringLiteral("error %1 de Windows").arg(GetLastError());
    return false;
#else
    const qint64 ms = local.toMSecsSinceEpoch();
    timespec ts{time_t(ms / 1000), long(ms % 1000) * 1000000L};
    if (clock_settime(CLOCK_REALTIME, &ts) == 0) return true;
    motivo = QString::fromLocal8Bit(std::strerror(errno));
    return false;
#endif
}

AjustadorReloj& ajustador() {
    static AjustadorReloj a;
    return a;
}

} // namespace

AjustadorReloj FijaAjustadorReloj(AjustadorReloj nuevo) {
    return std::exchange(ajustador(), std::move(nuevo));
}

bool AjustaReloj(const QDateTime& local, QString& motivo) {
    return ajustador() ? ajustador()(local, motivo) : ajustaRelojSistema(local, motivo);
}

TFRelojNod::TFRelojNod(QWidget* owner)
    : QDialog(owner,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::MSWindowsFixedSizeDialogHint) {
    setObjectName(QStringLiteral("FRelojNod"));
    setWindowTitle(QStringLiteral("Fecha y hora del sistema"));
    setMinimumWidth(300);

    m_fecha = new QDateEdit(this);
    m_fecha->setObjectName(QStringLiteral("DTPFecha"));
    m_fecha->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    m_fecha->setCalendarPopup(true);
    m_hora = new QTimeEdit(this);
    m_hora->setObjectName(QStringLiteral("DTPHora"));
    m_hora->setDisplayFormat(QStringLiteral("HH:mm:ss"));

    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName(QStringLiteral("BBAceptar"));
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("BBCancelar"));
    connect(aceptar, &QPushButton::clicked, this, &TFRelojNod::BBAceptarClick);
    connect(cancelar, &QPushButton::clicked, this, &TFRelojNod::reject);

    auto* campos = new QFormLayout;
    campos->addRow(QStringLiteral("&Fecha:"), m_fecha);
    campos->addRow(QStringLiteral("&Hora:"), m_hora);
    auto* l = new QVBoxLayout(this);
    l->addLayout(campos);
    l->addWidget(botones);
    setTabOrder(m_fecha, m_hora);
    setTabOrder(m_hora, aceptar);
    setTabOrder(aceptar, cancelar);
    // Enter moves on, from "&Aceptar" too (the button box would accept); each picker wears the focus mark
    // while it has the focus.
    OpcionesDialogo o;
    o.marcaFoco = MarcaFoco::Campos;
    AplicaConvencionesDialogo(this, o);
}

void TFRelojNod::FormShow() {
    const QDateTime ahora = TDateTimeToQDateTime(Now());
    m_fecha->setDate(ahora.date());
    m_hora->setTime(ahora.time());
}

QDateTime TFRelojNod::FechaHoraElegida() const {
    // The date and the time are joined as text and read back, as the suite always did: the result is
    // whole seconds of local time.
    const QString formato = QStringLiteral("dd/MM/yyyy HH:mm:ss");
    const QString texto = m_fecha->date().toString(QStringLiteral("dd/MM/yyyy")) + QLatin1Char(' ') +
                          m_hora->time().toString(QStringLiteral("HH:mm:ss"));
    return QDateTime::fromString(texto, formato);
}

void TFRelojNod::BBAceptarClick() {
    QString motivo;
    if (!AjustaReloj(FechaHoraElegida(), motivo))
        Mensaje_Error(QStringLiteral("No se ha podido cambiar la fecha y la hora del sistema.\n") + motivo,
                      QStringLiteral("Fecha y hora"));
    done(1);
}

void TFRelojNod::showEvent(QShowEvent* e) {
    FormShow();
    QDialog::showEvent(e);
}

} // namespace nod
