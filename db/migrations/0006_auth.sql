-- What the authentication service keeps besides auth.users: the ways a user signs in
-- (identities), the signed-in devices (sessions) with their rotating refresh tokens, and the
-- pending sign-ins of the PKCE flow. A hosted backend of this kind brings its own service and
-- tables, so everything here is created only where it is missing.

create schema if not exists extensions;
create extension if not exists pgcrypto with schema extensions;

do $$
begin
    if to_regclass('auth.identities') is null then
        create table auth.identities (
            id uuid primary key default gen_random_uuid(),
            -- The user's id at the provider ("sub"); for e-mail sign-in the user's own id.
            provider_id text not null,
            user_id uuid not null references auth.users (id) on delete cascade,
            identity_data jsonb not null default '{}'::jsonb,
            provider text not null,
            last_sign_in_at timestamptz,
            created_at timestamptz not null default now(),
            updated_at timestamptz not null default now(),
            email text generated always as (lower(identity_data ->> 'email')) stored,
            unique (provider_id, provider)
        );
        create index identities_user_id_idx on auth.identities (user_id);
    end if;

    if to_regclass('auth.sessions') is null then
        create table auth.sessions (
            id uuid primary key default gen_random_uuid(),
            user_id uuid not null references auth.users (id) on delete cascade,
            aal text not null default 'aal1',
            user_agent text,
            created_at timestamptz not null default now(),
            updated_at timestamptz not null default now(),
            refreshed_at timestamptz
        );
        create index sessions_user_id_idx on auth.sessions (user_id);
    end if;

    if to_regclass('auth.refresh_tokens') is null then
        -- Tokens rotate on every use; `parent` chains a session's tokens so that the reuse of an
        -- old one can be told from a lost answer (its child is then still the active token).
        create table auth.refresh_tokens (
            id bigserial primary key,
            token text not null unique,
            user_id uuid not null references auth.users (id) on delete cascade,
            session_id uuid not null references auth.sessions (id) on delete cascade,
            parent text,
            revoked boolean not null default false,
            created_at timestamptz not null default now(),
            updated_at timestamptz not null default now()
        );
        create index refresh_tokens_parent_idx on auth.refresh_tokens (parent);
        create index refresh_tokens_session_id_idx on auth.refresh_tokens (session_id);
    end if;

    if to_regclass('auth.flow_state') is null then
        -- One sign-in through an outside provider: created at /authorize, given the user and an
        -- authorisation code at the provider's callback, consumed by the code exchange.
        create table auth.flow_state (
            id uuid primary key default gen_random_uuid(),
            user_id uuid references auth.users (id) on delete cascade,
            auth_code text unique,
            code_challenge text not null,
            code_challenge_method text not null check (code_challenge_method in ('s256', 'plain')),
            provider_type text not null,
            redirect_to text,
            authentication_method text not null default 'oauth',
            auth_code_issued_at timestamptz,
            created_at timestamptz not null default now(),
            updated_at timestamptz not null default now()
        );
    end if;
end
$$;

revoke all on all tables in schema auth from public, anon, authenticated;
