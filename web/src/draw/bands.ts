// Bands of a score: below 25, 25 to 49, 50 to 79, 80 and above.
type Band = "poor" | "fair" | "good" | "great";

export function bandOf(score: number): Band {
  if (score < 25) return "poor";
  if (score < 50) return "fair";
  return score < 80 ? "good" : "great";
}
