// The device's formats for money, numbers and months, as the game's Locale (src/core/locale.h).

import { currencyOf } from "./currencies";
import { MessageWriter } from "./message";

const twelveMonths = Array.from({ length: 12 }, (_, month) => new Date(Date.UTC(2026, month, 15)));
const noBreakSpace = "\u00a0";

// The fields of the game's Locale in order, for a language tag ("de-CH").
export function localeMessage(tag: string): Uint8Array {
  const writer = new MessageWriter();
  for (const text of localeFields(tag)) writer.text(text);
  return writer.message();
}

export function localeFields(tag: string): string[] {
  const currency = currencyOf(new Intl.Locale(tag).maximize().region ?? "US");
  // The game writes Western digits, so the separators must belong to these.
  const money = new Intl.NumberFormat(tag, { style: "currency", currency, numberingSystem: "latn" });
  const parts = money.formatToParts(1);
  const symbolAt = parts.findIndex((part) => part.type === "currency");
  const before = symbolAt < parts.findIndex((part) => part.type === "integer");
  const gap = parts[before ? symbolAt + 1 : symbolAt - 1];

  const number = new Intl.NumberFormat(tag, { numberingSystem: "latn", minimumFractionDigits: 1 });
  const signs = number.formatToParts(-1234567.5);
  const sign = (type: Intl.NumberFormatPartTypes, usual: string) =>
    signs.find((part) => part.type === type)?.value ?? usual;

  const month = new Intl.DateTimeFormat(tag, { month: "long", timeZone: "UTC" });
  const months = twelveMonths.map((date) => month.format(date));
  return [
    parts[symbolAt]?.value ?? "$",
    before ? "1" : "0",
    gap?.type === "literal" && gap.value.trim() === "" ? noBreakSpace : "",
    sign("decimal", "."),
    sign("group", ","),
    sign("minusSign", "-"),
    ...months,
    ...months.map((name) => name.toLocaleUpperCase(tag)),
  ];
}
