"""Two builds in pairs: a change of five percent is seen through the noise, and noise is not taken for a change."""

import random
import unittest

from pairs import Pairs


def pairs(ours, others):
    return Pairs("start", "ms", ours, others)


def noisy(middle, spread, count, seed):
    chance = random.Random(seed)
    return [middle * chance.uniform(1 - spread, 1 + spread) for _ in range(count)]


class PairsTest(unittest.TestCase):
    def test_a_change_of_five_percent_shows_through_noise_of_four(self):
        found = pairs(noisy(95, 0.04, 25, seed=1), noisy(100, 0.04, 25, seed=2))
        self.assertRegex(found.verdict, r"^\*\*[3-7]\.\d% better\*\*$")

    def test_it_shows_for_worse_as_well(self):
        found = pairs(noisy(105, 0.04, 25, seed=1), noisy(100, 0.04, 25, seed=2))
        self.assertRegex(found.verdict, r"^\*\*[3-7]\.\d% worse\*\*$")

    def test_the_same_build_twice_hardly_ever_differs(self):
        verdicts = [pairs(noisy(100, 0.1, 15, seed), noisy(100, 0.1, 15, seed + 1000)).verdict for seed in range(200)]
        self.assertLess(sum("noise" not in verdict for verdict in verdicts), 6)

    def test_noise_that_hides_a_change_is_told(self):
        found = pairs(noisy(100, 0.5, 8, seed=3), noisy(100, 0.5, 8, seed=4))
        self.assertIn("needs a quieter machine", found.verdict)

    def test_a_quiet_machine_is_not_complained_of(self):
        found = pairs(noisy(100, 0.01, 15, seed=3), noisy(100, 0.01, 15, seed=4))
        self.assertNotIn("needs", found.verdict)

    def test_the_pairs_are_compared_not_the_sums(self):
        """The machine slows down to half meanwhile; each pair is ten percent apart all the same."""
        others = [100 + 10 * number for number in range(10)]
        found = pairs([0.9 * one for one in others], others)
        self.assertAlmostEqual(found.ratio, 0.9)
        self.assertEqual(found.verdict, "**10.0% better**")

    def test_too_few_pairs_say_nothing(self):
        with self.assertRaises(ValueError):
            _ = pairs([1] * 7, [2] * 7).bounds

    def test_eight_pairs_are_enough_for_the_outermost_ratios(self):
        ours = [1, 2, 3, 4, 5, 6, 7, 8]
        self.assertEqual(pairs(ours, [1] * 8).bounds, (1, 8))


if __name__ == "__main__":
    unittest.main()
