// The official authentication client against morvane-server: sign-up, sign-in, refresh with
// rotation, the current user, metadata updates, password recovery and sign-out, unchanged.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { AuthClient } from '@supabase/auth-js';

const url = process.env.MORVANE_URL;
const anonKey = process.env.MORVANE_ANON_KEY;
assert.ok(url && anonKey, 'MORVANE_URL and MORVANE_ANON_KEY must be set');

function client() {
  return new AuthClient({
    url: `${url}/auth/v1`,
    headers: { apikey: anonKey, Authorization: `Bearer ${anonKey}` },
    persistSession: false,
    autoRefreshToken: false,
    detectSessionInUrl: false,
  });
}

const stamp = Date.now();
const email = `js-${stamp}@example.nl`;
const password = 'a good passphrase';

test('sign-up answers a session at once and copies the display name', async () => {
  const { data, error } = await client().signUp({ email, password, options: { data: { display_name: 'Jess' } } });
  assert.equal(error, null);
  assert.equal(data.user.email, email);
  assert.equal(data.user.user_metadata.display_name, 'Jess');
  assert.ok(data.session.access_token.split('.').length === 3);
  assert.equal(data.session.token_type, 'bearer');
});

test('a second sign-up of the address is refused with its code', async () => {
  const { data, error } = await client().signUp({ email, password: 'something else' });
  assert.equal(data.user, null);
  assert.equal(error.status, 422);
  assert.equal(error.code, 'user_already_exists');
});

test('a weak password is refused as such', async () => {
  const { error } = await client().signUp({ email: `weak-${stamp}@example.nl`, password: '123' });
  assert.equal(error.code, 'weak_password');
  assert.equal(error.status, 422);
});

test('sign-in by password, and the wrong password', async () => {
  const auth = client();
  const wrong = await auth.signInWithPassword({ email, password: 'not it' });
  assert.equal(wrong.error.status, 400);
  assert.equal(wrong.error.code, 'invalid_credentials');
  assert.equal(wrong.error.message, 'Invalid login credentials');

  const { data, error } = await auth.signInWithPassword({ email, password });
  assert.equal(error, null);
  assert.equal(data.user.email, email);
  assert.ok(data.session.expires_at > Date.now() / 1000);
});

test('refresh rotates the token and a twice-old token is refused', async () => {
  const auth = client();
  const { data: signedIn } = await auth.signInWithPassword({ email, password });
  const first = signedIn.session.refresh_token;
  const { data: refreshed, error } = await auth.refreshSession({ refresh_token: first });
  assert.equal(error, null);
  const second = refreshed.session.refresh_token;
  assert.notEqual(second, first);
  const third = (await auth.refreshSession({ refresh_token: second })).data.session.refresh_token;
  assert.notEqual(third, second);

  const reused = await client().refreshSession({ refresh_token: first });
  assert.equal(reused.data.session, null);
  assert.equal(reused.error.code, 'refresh_token_already_used');
});

test('the current user, a metadata update and sign-out', async () => {
  const auth = client();
  const { data: signedIn } = await auth.signInWithPassword({ email, password });
  const access = signedIn.session.access_token;

  const { data: me, error } = await auth.getUser(access);
  assert.equal(error, null);
  assert.equal(me.user.email, email);
  assert.equal(me.user.identities[0].provider, 'email');

  const updated = await auth.updateUser({ data: { theme: 'dark' } });
  assert.equal(updated.error, null);
  assert.equal(updated.data.user.user_metadata.theme, 'dark');
  assert.equal(updated.data.user.user_metadata.display_name, 'Jess');

  const out = await auth.signOut({ scope: 'local' });
  assert.equal(out.error, null);
  const after = await client().getUser(access);
  assert.equal(after.data.user, null);
  // The client turns the server's session_not_found into its own missing-session error.
  assert.equal(after.error.name, 'AuthSessionMissingError', JSON.stringify(after.error));
});

test('password recovery is accepted for any address', async () => {
  for (const address of [email, `nobody-${stamp}@example.nl`]) {
    const { error } = await client().resetPasswordForEmail(address, { redirectTo: 'morvane://auth/reset-password' });
    assert.equal(error, null);
  }
  const again = await client().resetPasswordForEmail(email);
  assert.equal(again.error.status, 429);
  assert.equal(again.error.code, 'over_email_send_rate_limit');
});
