"""Waiting for something to become true; the only way in which the tests spend time."""
import time

PATIENCE = 20.0
"""Seconds until a condition counts as never met: far more than a busy machine needs."""


class NeverHappened(AssertionError):
    """The condition was not met in time."""


def until(condition, what, patience=PATIENCE):
    """Asks again and again until the condition gives something true, and returns that."""
    deadline = time.monotonic() + patience
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise NeverHappened(f"not within {patience:.0f} s: {what}")
        time.sleep(0.03)


def stays(condition, what, seconds=0.6):
    """Fails when the condition stops being true within the time."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise NeverHappened(f"did not stay: {what}")
        time.sleep(0.05)
